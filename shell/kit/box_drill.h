#pragma once

#include "shell/kit/typing_drill.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;

namespace shell {

class AnswerBox;

/// The window of a drill whose forms are typed into boxes, numbered from 0, of which one is asked at a time.
/// Only that one can hold the focus. While an answer is judged or shown nothing can be typed, and nothing is
/// checked or shown a second time.
class BoxDrill : public TypingDrill {
    Q_OBJECT

public:
    BoxDrill(std::string_view name, std::string_view activeName, std::string_view exerciseType);

    void showScore(const std::string& text) override;
    void greyAnsweredBox() override;
    void focusQuestion() override;
    void askAgain() override;

protected:
    /// The box that is asked, as the drill's rules have it.
    virtual int askedBoxNumber() const = 0;

    /// Sets the question by the drill's rules, and shows where it stands.
    virtual void setQuestion() = 0;

    /// Whether this answer is right; nothing where it does not count.
    virtual std::optional<bool> judge(const std::string& typed) = 0;

    /// Called before the question is set because a box has received the focus.
    virtual void boxEntered(int /*number*/) {}

    /// Leaves the drill.
    virtual void quit() = 0;

    AnswerBox* addBox(QWidget* parent, const QString& name);
    AnswerBox& box(int number) const;
    AnswerBox& askedBox() const override;
    const std::vector<AnswerBox*>& boxes() const { return boxes_; }
    void emptyBoxes();

    QLabel* scoreLabel() const { return score_; }

    /// The uppermost row of the window: what names the question, and the score with the question's place.
    QBoxLayout* withScore(const Part& heading);

    /// The button that checks, the one that shows the answer, and the one that leaves.
    QPushButton* makeCheckButton(QAnyStringView name);
    QPushButton* makeQuestionButton(QAnyStringView name);
    QPushButton* makeQuitButton(QAnyStringView name);

    /// The lowest row of the window: the help label, and the buttons.
    QBoxLayout* helpAndButtons(std::initializer_list<QWidget*> buttons);

    /// Sets the question, and gives its look to every box that is not asked.
    void showQuestion();

    void closeBoxPressed() override;

private:
    void check() override;
    void boxReceivedFocus(int number);
    void holdBoxes() override;

    std::vector<AnswerBox*> boxes_;
    QLabel* score_;
};

} // namespace shell
