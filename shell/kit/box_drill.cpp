#include "shell/kit/box_drill.h"

#include "shell/kit/answer_box.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/pause.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace shell {

BoxDrill::BoxDrill(std::string_view name, std::string_view activeName, std::string_view exerciseType)
    : TypingDrill(name, activeName, exerciseType), score_(makeScore(this, "ScoreLabel"))
{
}

AnswerBox* BoxDrill::addBox(QWidget* parent, const QString& name)
{
    auto* const box = makeControl<AnswerBox>(parent, name);
    const auto number = static_cast<int>(boxes_.size());
    connect(box, &AnswerBox::focusReceived, this, [this, number] { boxReceivedFocus(number); });
    connect(box, &AnswerBox::hintRequested, this, &BoxDrill::revealAnswer);
    connect(box, &AnswerBox::returnPressed, this, &BoxDrill::check);
    joinBox(*box);
    takeMacrons(*box);
    boxes_.push_back(box);
    return box;
}

QBoxLayout* BoxDrill::withScore(const Part& heading)
{
    QBoxLayout* const scoreAndPlace =
        columnOf(HairSpace, {{score_, 0, Qt::AlignRight}, {whereLabel(), 0, Qt::AlignRight}, Part::gap()});
    return rowOf(MediumSpace, {heading, scoreAndPlace});
}

QPushButton* BoxDrill::makeCheckButton(QAnyStringView name)
{
    QPushButton* const button = makeButton(this, name);
    connect(button, &QPushButton::clicked, this, &BoxDrill::check);
    return button;
}

QPushButton* BoxDrill::makeQuestionButton(QAnyStringView name)
{
    QPushButton* const button = shell::makeQuestionButton(this, name);
    connect(button, &QPushButton::clicked, this, &BoxDrill::revealAnswer);
    return button;
}

QPushButton* BoxDrill::makeQuitButton(QAnyStringView name)
{
    QPushButton* const button = makeButton(this, name);
    connect(button, &QPushButton::clicked, this, [this] { quit(); });
    return button;
}

QBoxLayout* BoxDrill::helpAndButtons(std::initializer_list<QWidget*> buttons)
{
    return buttonRow({makeLabel(this, "HelpLabel")}, buttons);
}

AnswerBox& BoxDrill::box(int number) const
{
    return *boxes_.at(static_cast<std::size_t>(number));
}

AnswerBox& BoxDrill::askedBox() const
{
    return box(askedBoxNumber());
}

void BoxDrill::showQuestion()
{
    setQuestion();
    for (AnswerBox* const box : boxes_) {
        const bool asked = box == &askedBox();
        if (!asked && !box->keepsItsLook())
            box->lookIdle();
        box->setAsked(asked && !pausing());
    }
}

// Only the box that is asked may hold the focus.
void BoxDrill::boxReceivedFocus(int number)
{
    boxEntered(number);
    showQuestion();
    if (number != askedBoxNumber())
        QMetaObject::invokeMethod(this, &BoxDrill::focusQuestion, Qt::QueuedConnection);
}

// A box that has the focus already, or gets it while another window is active, is not told so by Qt.
void BoxDrill::focusQuestion()
{
    askedBox().setFocus();
    boxReceivedFocus(askedBoxNumber());
}

void BoxDrill::check()
{
    if (!canAnswer())
        return;
    const std::optional<bool> right = judge(askedBox().text().toStdString());
    if (!right)
        return;
    holdBoxes();
    announce(*right);
}

void BoxDrill::askAgain()
{
    askedBox().clear();
    focusQuestion();
}

void BoxDrill::showScore(const std::string& text)
{
    score_->setText(fromUtf8(text));
}

void BoxDrill::greyAnsweredBox()
{
    askedBox().lookAnswered();
    askedBox().setCursorPosition(0);
}

void BoxDrill::emptyBoxes()
{
    for (AnswerBox* const box : boxes_) {
        box->clear();
        box->lookIdle();
    }
}

// What is typed while an answer is judged or shown belongs to no box.
void BoxDrill::holdBoxes()
{
    for (AnswerBox* const box : boxes_)
        box->setReadOnly(true);
}

void BoxDrill::closeBoxPressed()
{
    quit();
}

} // namespace shell
