#pragma once

#include "nouns/pronoun_drill.h"
#include "shell/drill.h"
#include "shell/windows/window.h"

#include <array>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;

namespace shell {
class AnswerBox;
}

namespace nouns {

/// The pronoun drill: three columns of five boxes, of which one is asked at a time. Its rows stand in the
/// order of `CaseOrder`; a box without a form is disabled.
class PronounSingular : public shell::Window, public shell::Drill {
    Q_OBJECT

public:
    PronounSingular();
    ~PronounSingular() override;

    /// Shows the window for the group that was chosen, beginning with the singular.
    void open();

    void showScore(const std::string& text) override;
    void greyAnsweredBox() override;
    void moveOn() override;
    void focusQuestion() override;
    void askAgain() override;

Q_SIGNALS:
    /// An answer was checked.
    void answerJudged(bool right);

    /// The drill was left.
    void left();

protected:
    void closeBoxPressed() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeControls();
    void makeBoxes();
    void layOut();
    QBoxLayout* headingRow();
    QBoxLayout* buttonRow();
    void placeRows();
    void connectControls();

    void showNumber();
    void showQuestion();
    void boxReceivedFocus(int cell);
    void check();
    void hint();
    void quit();
    void emptyBoxes();
    void holdBoxes();
    shell::AnswerBox& boxOf(int cell);
    shell::AnswerBox& askedBox();

    std::array<shell::AnswerBox*, CellCount> boxes_{};
    std::array<bool, CellCount> answered_{};
    std::array<QLabel*, CasesOfNumber> cases_{};
    std::array<QLabel*, ColumnsOfGroup> columns_{};
    QGridLayout* rows_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* score_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace nouns
