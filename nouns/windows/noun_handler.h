#pragma once

#include "nouns/noun_edits.h"
#include "shell/kit/window.h"

#include <array>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;

namespace shell {
class ChoiceList;
class RecordForm;
} // namespace shell

namespace nouns {

/// The noun manager: shows the noun lists by declension and lets the learner add nouns. They are kept in
/// memory: the list file is never written; a noun's line for it can be copied.
///
/// `NHAdd` adds a last row for a new noun to any declension, whose fields can be filled in; pressed on that
/// row it stores the noun, or says why it cannot. What was filled in waits there until it is stored.
class NounHandler : public shell::Window {
    Q_OBJECT

public:
    NounHandler();

    /// Starts afresh with the first declension.
    void open();

    /// A noun by its paradigm and its number there.
    struct ListRow {
        const ListedParadigm* paradigm;
        int number;
    };

    /// The one that is chosen; none on the row for a new one.
    std::optional<ListRow> chosenNoun() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeControls();
    void layOut();
    void connectControls();

    void listNouns();
    void chooseParadigm();
    void showNoun(int row);
    void showWhatCanBeDone();
    void copyLine();
    void keepDraft();
    void showDraft();
    NounRecord typedNoun() const;
    void add();
    void addNewRow();
    void storeNewNoun();
    void chooseLastOf(int paradigm);
    bool isNewRow(int row) const;
    int chosenParadigm() const;
    int presetParadigm() const;
    std::string lineOfChosenNoun() const;

    shell::ChoiceList* declensions_ = nullptr;
    shell::ChoiceList* nouns_ = nullptr;
    QComboBox* paradigms_ = nullptr;
    shell::RecordForm* form_ = nullptr;
    QPushButton* add_ = nullptr;
    QLabel* room_ = nullptr;
    QPushButton* copy_ = nullptr;
    QLabel* kept_ = nullptr;
    QPushButton* close_ = nullptr;

    std::vector<ListRow> rows_;
    // What was typed on each declension's new row, and the paradigm chosen for it; 0 where none was.
    struct Draft {
        NounRecord noun;
        int paradigm = 0;
    };
    std::array<Draft, 5> drafts_;
};

} // namespace nouns
