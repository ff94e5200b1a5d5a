#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/kit/window.h"

#include <array>

class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;

namespace nouns {

inline constexpr int NamedDeclensionCount = 6;

/// The noun quiz: shows a form and lets the learner tick every case that it can stand for. The declension
/// that the noun belongs to is set in bold.
class NounQuiz : public shell::Window {
    Q_OBJECT

public:
    NounQuiz();

    /// Shows the window with a new question.
    void open();

    /// Whether the verdict stands, with what is right.
    bool verdictStands() const;

Q_SIGNALS:
    /// The length of the pause is to be set.
    void optionsRequested();

private:
    void makeControls();
    void makeChecks();
    void makeButtons();
    void layOut();
    QBoxLayout* checkRow();
    void connectControls();

    void ask();
    void tick(int caseIndex, bool ticked);
    void check();
    void skip();

    std::array<QCheckBox*, CaseCount> checks_{};
    std::array<QLabel*, NamedDeclensionCount> declensions_{};
    QGroupBox* singular_ = nullptr;
    QGroupBox* plural_ = nullptr;
    QLabel* form_ = nullptr;
    QLabel* info_ = nullptr;
    QLabel* indices_ = nullptr;
    QLabel* score_ = nullptr;
    QLabel* verdict_ = nullptr;
    QLabel* answer_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* skip_ = nullptr;
    QPushButton* options_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace nouns
