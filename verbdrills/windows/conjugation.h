#pragma once

#include "shell/drill.h"
#include "shell/windows/window.h"
#include "verbdrills/conjugation_drill.h"

#include <array>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;

namespace shell {
class AnswerBox;
}

namespace verbdrills {

/// The conjugation drill: six boxes, one for each person, of which one is asked at a time.
class Conjugation : public shell::Window, public shell::Drill {
    Q_OBJECT

public:
    Conjugation();
    ~Conjugation() override;

    /// Shows the window for the paradigm and the person that were chosen.
    void open();

    void showScore(const std::string& text) override;
    void greyAnsweredBox() override;
    void moveOn() override;
    void focusQuestion() override;
    void askAgain() override;

Q_SIGNALS:
    /// An answer was checked.
    void answerJudged(bool right);

    /// The drill was left, or has come to its end.
    void left();

protected:
    void becameActive() override;
    void closeBoxPressed() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeControls();
    void layOut();
    QBoxLayout* headingRows();
    QGridLayout* answerGrid();
    QBoxLayout* buttonRow();
    void connectControls();

    void showQuestion();
    void showGloss(int box);
    void boxReceivedFocus(int box);
    void check();
    void hint();
    void quit();
    void emptyBoxes();
    void holdBoxes();
    shell::AnswerBox& askedBox();

    std::array<shell::AnswerBox*, BoxCount> boxes_{};
    std::array<QLabel*, BoxCount> glosses_{};
    std::array<bool, BoxCount> answered_{};
    QLabel* title_;
    QLabel* tense_;
    QLabel* verb_;
    QLabel* score_;
    QPushButton* question_;
    QPushButton* continue_;
    QPushButton* quit_;
};

} // namespace verbdrills
