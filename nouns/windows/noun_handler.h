#pragma once

#include "nouns/noun_edits.h"
#include "shell/kit/window.h"

#include <array>
#include <vector>

class QComboBox;
class QListWidget;
class QPushButton;

namespace shell {
class RecordForm;
}

namespace nouns {

/// The noun manager: shows the noun lists by declension and lets the learner add nouns. They are kept in
/// memory: the list file is never written.
///
/// `NHAdd` adds a last row for a new noun to any declension, whose fields can be filled in; pressed on that
/// row it stores the noun, or says why it cannot. What was filled in waits there until it is stored.
class NounHandler : public shell::Window {
    Q_OBJECT

public:
    NounHandler();

    /// Starts afresh with the first declension.
    void open();

private:
    void makeControls();
    void layOut();
    void connectControls();

    struct ListRow {
        const ListedParadigm* paradigm;
        int number;
    };

    void listNouns();
    void chooseParadigm(int row);
    void showNoun(int row);
    void allowTyping(bool allowed);
    void keepDraft();
    void showDraft();
    NounRecord typedNoun() const;
    void add();
    void addNewRow();
    void storeNewNoun();
    void chooseLastOf(int paradigm);
    bool isNewRow(int row) const;
    int chosenParadigm() const;

    QListWidget* declensions_ = nullptr;
    QListWidget* nouns_ = nullptr;
    QComboBox* paradigms_ = nullptr;
    shell::RecordForm* form_ = nullptr;
    QPushButton* add_ = nullptr;
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
