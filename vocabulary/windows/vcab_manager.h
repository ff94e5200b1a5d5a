#pragma once

#include "shell/kit/window.h"
#include "vocabulary/vocabulary_list.h"

class QLayout;
class QPushButton;

namespace shell {
class ChoiceList;
class RecordForm;
} // namespace shell

namespace vocabulary {

/// The vocabulary editor: the words of the list, and three boxes for the record that is chosen. Its title
/// names the list's file.
///
/// What was typed and not yet accepted is taken over before another record, another list or another window
/// comes: into the record that is chosen, or as a new one where none is. A new record needs a word or its
/// translation.
class VcabManager : public shell::Window {
    Q_OBJECT

public:
    VcabManager();

    /// Shows the list in memory; no record is chosen.
    void open();

    /// Comes back from another window with the same record.
    void comeBack();

Q_SIGNALS:
    void loadRequested();
    void saveRequested();
    void exitRequested();

protected:
    void closeBoxPressed() override;

private:
    void makeControls();
    void layOut();
    QLayout* buttons();
    void connectControls();

    void accept();
    void add();
    void deleteChosen();
    void enterRecord();
    void leaveFor(void (VcabManager::*request)());

    void moveTo(int number);
    bool takeBoxes();
    bool addBoxes();
    void listWords();
    void markChosen(int number);
    void showRecord(int number);
    bool boxesAreEdited() const;
    bool boxesHoldNoWord() const;
    WordRecord recordInBoxes() const;

    /// The record in the boxes, 1 to `WordCount`; 0 for a new one.
    int shown_ = 0;

    shell::ChoiceList* words_ = nullptr;
    shell::RecordForm* form_ = nullptr;
    QPushButton* accept_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* load_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* exit_ = nullptr;
};

} // namespace vocabulary
