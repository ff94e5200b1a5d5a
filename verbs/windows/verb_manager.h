#pragma once

#include "shell/kit/window.h"
#include "verbs/verb_list.h"

#include <array>

class QLabel;
class QPushButton;

namespace shell {
class ChoiceList;
class RecordForm;
} // namespace shell

namespace verbs {

/// Shows the verb lists by class and lets the learner change and add verbs. The changes are kept in memory:
/// the list file is never written; a verb's line for it can be copied. What was typed and not added goes as
/// soon as another row is chosen or the window is left.
class VerbManager : public shell::Window {
    Q_OBJECT

public:
    VerbManager();

    /// Starts afresh with the first conjugation.
    void open();

    /// The class that is chosen, and the number of the verb in it; the number after the last is a new one's.
    int chosenClass() const;
    int chosenVerb() const;

Q_SIGNALS:
    /// The cancel button, which ends the whole program at once.
    void endRequested();

private:
    void makeControls();
    void layOut();
    void connectControls();
    void listVerbs();
    void showVerb(int row);
    void showPreviews();
    void copyLine();
    void addVerb();
    VerbRecord typedVerb() const;

    shell::ChoiceList* classes_ = nullptr;
    shell::ChoiceList* verbs_ = nullptr;
    shell::RecordForm* form_ = nullptr;
    std::array<QLabel*, 3> previews_{};
    QPushButton* add_ = nullptr;
    QLabel* room_ = nullptr;
    QPushButton* copy_ = nullptr;
    QLabel* kept_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace verbs
