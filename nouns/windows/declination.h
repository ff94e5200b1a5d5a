#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/drill.h"
#include "shell/windows/window.h"

#include <array>

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;

namespace shell {
class AnswerBox;
}

namespace nouns {

/// The declension drill: ten boxes, one for each case, of which one is asked at a time.
///
/// Its rows stand in the order of `CaseOrder`, 600 twips apart and 360 twips below the top of their frame;
/// larger type moves them further down. The boxes keep their numbers in either order.
class Declination : public shell::Window, public shell::Drill {
    Q_OBJECT

public:
    Declination();
    ~Declination() override;

    /// Draws a noun of the paradigm that was chosen and shows the window.
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
    QBoxLayout* frameRow();
    QBoxLayout* buttonRow();
    void placeRows();
    void connectControls();

    void showNoun();
    void showQuestion();
    void boxReceivedFocus(int box);
    void check();
    void hint();
    void quit();
    void emptyBoxes();
    void holdBoxes();
    shell::AnswerBox& askedBox();

    std::array<shell::AnswerBox*, CaseCount> boxes_{};
    std::array<QLabel*, CasesOfNumber> cases_{};
    std::array<bool, CaseCount> answered_{};
    QGroupBox* singular_ = nullptr;
    QGroupBox* plural_ = nullptr;
    QGridLayout* singularRows_ = nullptr;
    QGridLayout* pluralRows_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* noun_ = nullptr;
    QLabel* score_ = nullptr;
    QWidget* dummy_ = nullptr;
    QPushButton* continue_ = nullptr;
    QPushButton* question_ = nullptr;
    QPushButton* quit_ = nullptr;
};

} // namespace nouns
