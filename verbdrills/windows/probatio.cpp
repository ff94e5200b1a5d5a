#include "verbdrills/windows/probatio.h"

#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/windows/person_and_number.h"
#include "verbdrills/windows/probatio_captions.h"
#include "verbdrills/windows/quiz_list.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace verbdrills {

using shell::makeButton;
using shell::makeLabel;

namespace {

constexpr QSize LargestBlock{120, 43};

// So much more than a spacer's stretch that a list grows first.
constexpr int FillsColumn = 1000;

} // namespace

Probatio::Probatio() : Window("Probatio", "quiz")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
    shell::applyDesignedCaptions(*this, probatioCaptions());
    shell::registerDrill(shell::exercise::Quiz, *this);
}

Probatio::~Probatio()
{
    shell::unregisterDrill(shell::exercise::Quiz);
}

void Probatio::makeControls()
{
    item_ = makeLabel(this, "QuizItem");
    baseForm_ = makeLabel(this, "QuizBaseForm");
    shell::setBoldType(*item_, shell::TitleType);
    shell::setType(*baseForm_, shell::FormType);
    classes_ = new QuizList("QuizConjList", QStringLiteral("Conjugations"), this);
    tenses_ = new QuizList("QuizTenseList", QStringLiteral("Tenses"), this);
    personAndNumber_ = new PersonAndNumber(this);
    yourAnswer_ = makeLabel(this, "QuizYourAnswer");
    correctHeading_ = makeLabel(this, "QuizHeading");
    correct_ = makeLabel(this, "QuizCorrect");
    yourAnswer_->setWordWrap(true);
    correct_->setWordWrap(true);
    ok_ = makeButton(this, "QuizOK");
    question_ = makeButton(this, "QuizQuestion");
    skip_ = makeButton(this, "QuizSkip");
    options_ = makeButton(this, "QuizOptions");
    cancel_ = makeButton(this, "QuizCancel");
    question_->setText(QStringLiteral("?"));
    question_->setAccessibleName(QStringLiteral("Show the answer"));
}

void Probatio::layOut()
{
    auto* const rows = new QVBoxLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setSpacing(shell::MediumSpace);
    rows->addLayout(questionRows());
    rows->addLayout(answerColumns(), 1);
    rows->addLayout(answersInWords());
    rows->addLayout(buttonRow());
}

QBoxLayout* Probatio::questionRows()
{
    QLabel* const identify = makeLabel(this, "IdentifyLabel");
    identify->setWordWrap(true);
    auto* const form = new QHBoxLayout;
    form->setSpacing(shell::WideSpace);
    form->addWidget(item_);
    form->addWidget(baseForm_, 1, Qt::AlignRight | Qt::AlignBottom);
    auto* const rows = new QVBoxLayout;
    rows->setSpacing(shell::HairSpace);
    rows->addWidget(identify);
    rows->addLayout(form);
    return rows;
}

QBoxLayout* Probatio::answerColumns()
{
    auto* const left = new QVBoxLayout;
    left->setSpacing(shell::MediumSpace);
    left->addWidget(classes_, FillsColumn);
    left->addWidget(personAndNumber_);
    left->addStretch(1);
    auto* const right = new QVBoxLayout;
    right->addWidget(tenses_, FillsColumn);
    right->addStretch(1);
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(shell::LargeSpace);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    return columns;
}

QGridLayout* Probatio::answersInWords()
{
    QLabel* const yourHeading = makeLabel(this, "YourAnswerLabel");
    shell::setBoldType(*yourHeading, 1);
    shell::setBoldType(*correctHeading_, 1);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::LargeSpace);
    grid->setVerticalSpacing(shell::HairSpace);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->addWidget(yourHeading, 0, 0);
    grid->addWidget(correctHeading_, 0, 1);
    grid->addWidget(yourAnswer_, 1, 0, Qt::AlignTop);
    grid->addWidget(correct_, 1, 1, Qt::AlignTop);
    grid->setRowMinimumHeight(1, 2 * QFontMetrics(font()).lineSpacing());
    return grid;
}

QBoxLayout* Probatio::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(makeLabel(this, "HelpLabel"));
    row->addStretch();
    for (QPushButton* const button : {ok_, question_, skip_, options_, cancel_})
        row->addWidget(button);
    return row;
}

void Probatio::connectControls()
{
    for (QuizList* const list : {classes_, tenses_}) {
        connect(list, &QuizList::rowChosen, this, &Probatio::showChosenAnswer);
        checkOnEnter(list);
    }
    connect(personAndNumber_, &PersonAndNumber::chosen, this, &Probatio::showChosenAnswer);
    checkOnEnter(personAndNumber_);
    connect(ok_, &QPushButton::clicked, this, &Probatio::check);
    connect(question_, &QPushButton::clicked, this, &Probatio::showRightAnswer);
    connect(skip_, &QPushButton::clicked, this, &Probatio::skip);
    connect(options_, &QPushButton::clicked, this, &Probatio::optionsRequested);
    connect(cancel_, &QPushButton::clicked, this, &Probatio::left);
}

void Probatio::checkOnEnter(QWidget* control)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const enter = new QShortcut(key, control);
        enter->setAutoRepeat(false);
        enter->setContext(Qt::WidgetWithChildrenShortcut);
        connect(enter, &QShortcut::activated, this, &Probatio::check);
    }
}

void Probatio::open()
{
    shell::applyCaptions(*this, probatioCaptions());
    classes_->fill(quizClassNames());
    tenses_->fill(quizTenseNames());
    verbQuiz.formIsAsked = false;
    resume();
}

void Probatio::resume()
{
    if (verbQuiz.formIsAsked || askAnotherForm())
        appear();
}

void Probatio::comeBack()
{
    if (verbQuiz.formIsAsked || !someFormCanBeAsked())
        appear();
    else
        resume();
}

void Probatio::appear()
{
    showForm();
    showInMainWindowState();
    focusQuestion();
}

bool Probatio::askAnotherForm()
{
    const bool asked = askForm();
    showForm();
    resetAnswer();
    if (!asked)
        Q_EMIT nothingToAsk();
    return asked;
}

void Probatio::showForm()
{
    const bool asked = verbQuiz.formIsAsked;
    item_->setText(asked ? shell::fromUtf8(formAsked()) : QString());
    baseForm_->setText(asked ? shell::fromUtf8(titleOfFormAsked()) : QString());
    ok_->setEnabled(asked);
    question_->setEnabled(asked);
}

void Probatio::resetAnswer()
{
    classes_->reset();
    tenses_->reset();
    personAndNumber_->reset();
    yourAnswer_->clear();
    correctHeading_->clear();
    correct_->clear();
}

Identification Probatio::chosenAnswer() const
{
    return {.classRow = classes_->chosenRow(),
            .tenseRow = tenses_->chosenRow(),
            .person = personAndNumber_->person(),
            .number = personAndNumber_->number()};
}

void Probatio::showChosenAnswer()
{
    yourAnswer_->setText(shell::fromUtf8(describe(chosenAnswer())));
}

void Probatio::check()
{
    if (shell::pausing() || !isVisible() || !verbQuiz.formIsAsked)
        return;
    showChosenAnswer();
    Q_EMIT answerJudged(judgeIdentification(chosenAnswer()));
}

void Probatio::skip()
{
    if (!shell::pausing() && askAnotherForm())
        focusQuestion();
}

void Probatio::showRightAnswer()
{
    if (shell::pausing() || !verbQuiz.formIsAsked)
        return;
    showChosenAnswer();
    correctHeading_->setText(shell::fromUtf8(correctHeading()));
    correct_->setText(shell::fromUtf8(describe(rightIdentification())));
}

// The quiz shows no score, and has no box that turns grey.
void Probatio::showScore(const std::string&) {}

void Probatio::greyAnsweredBox() {}

void Probatio::moveOn()
{
    askAnotherForm();
}

void Probatio::focusQuestion()
{
    classes_->setFocus();
}

void Probatio::askAgain()
{
    focusQuestion();
}

} // namespace verbdrills
