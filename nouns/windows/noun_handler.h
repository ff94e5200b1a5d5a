#pragma once

#include "nouns/noun_edits.h"
#include "shell/kit/list_manager.h"

#include <array>
#include <optional>
#include <vector>

class QComboBox;

namespace nouns {

/// The noun manager. `NHAdd` adds a last row for a new noun to any declension, whose fields can be filled in;
/// pressed on that row it stores the noun, or says why it cannot. What was filled in waits there until it is
/// stored.
class NounHandler : public shell::ListManager {
    Q_OBJECT

public:
    NounHandler();

    /// A noun by its paradigm and its number there.
    struct ListRow {
        const ListedParadigm* paradigm;
        int number;
    };

    /// The one that is chosen; none on the row for a new one.
    std::optional<ListRow> chosenNoun() const;

protected:
    void listWords() override;
    void showWord(int row) override;
    void add() override;
    std::string lineOf(int row) const override;
    void changeEvent(QEvent* event) override;

private:
    // What was typed on a declension's new row, and the paradigm chosen for it; 0 where none was.
    struct Draft {
        NounRecord noun;
        int paradigm = 0;
    };

    void makeForm();
    void connectForm();
    void listParadigm(const ListedParadigm& paradigm);
    std::optional<ListRow> nounIn(int row) const;
    void chooseParadigm();
    void showWhatCanBeDone();
    void showDraft();
    NounRecord typedNoun() const;
    void addNewRow();
    void storeNewNoun();
    void chooseLastOf(int paradigm);
    bool isNewRow(int row) const;
    int chosenParadigm() const;
    int presetParadigm() const;
    Draft& draft();

    QComboBox* paradigms_ = nullptr;
    std::vector<ListRow> rows_;
    std::array<Draft, DeclensionCount> drafts_;
};

} // namespace nouns
