#pragma once

#include "shell/windows/window.h"

#include <array>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace verbs {

/// Shows the verb lists by class and lets the learner change and add verbs. The changes are kept in memory:
/// the list file is never written.
class VerbManager : public shell::Window {
    Q_OBJECT

public:
    VerbManager();

    /// Starts afresh with the first conjugation.
    void open();

Q_SIGNALS:
    /// The window was closed by its close box.
    void left();

    /// The cancel button, which ends the whole program at once.
    void endRequested();

protected:
    void closeBoxPressed() override;

private:
    void makeControls();
    void layOut();
    void connectControls();
    void listVerbs();
    void showVerb(int row);
    void showPreviews();
    void addVerb();
    int chosenClass() const;

    QListWidget* classes_;
    QListWidget* verbs_;
    std::array<QLineEdit*, 3> latin_{};
    std::array<QLabel*, 3> previews_{};
    std::array<QLineEdit*, 4> translations_{};
    QPushButton* add_;
    QPushButton* cancel_;
};

} // namespace verbs
