#include "verbdrills/windows/conjugation.h"

#include "platform/platform.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "shell/windows/answer_box.h"
#include "shell/windows/captions.h"
#include "shell/windows/controls.h"
#include "shell/windows/text.h"
#include "shell/windows/type.h"
#include "verbdrills/gloss.h"
#include "verbs/verb_tables.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace verbdrills {

using shell::AnswerBox;
using shell::Caption;
using shell::makeButton;
using shell::makeLabel;
using verbs::currentParadigm;

namespace {

constexpr QSize LargestBlock{96, 30};
constexpr int PersonsOfNumber = 3;
constexpr std::array PersonRows = {"FirstPerson", "SecondPerson", "ThirdPerson"};

// French has the Latin names of the numbers, and the German "Merhzahl" is meant.
// clang-format off
constexpr std::array Captions = {
    //                        English     French                Italian  German    Spanish     Latin
    Caption{"Ccontinue",     {"&OK",      "&Oui",               {}, "&OK",      "&Si",      "&Ita"}},
    Caption{"Cquit",         {"&Quit",    "&Non",               {}, "&Abbruch", "&Salir",   "&Reverte!"}},
    Caption{"FirstPerson",   {"1st",      "1",                  {}, "1.",       "1a",       "i"}},
    Caption{"SecondPerson",  {"2nd",      "2",                  {}, "2.",       "2a",       "ii"}},
    Caption{"ThirdPerson",   {"3rd",      "3",                  {}, "3.",       "3a",       "iii"}},
    Caption{"Singular",      {"Singular", "Numerus Singularis", {}, "Einzahl",  "Singular", "Numerus Singularis"}},
    Caption{"Plural",        {"Plural",   "Numerus Pluralis",   {}, "Merhzahl", "Plural",   "Numerus Pluralis"}},
    Caption{"HelpLabel",     {"Help=F1",  "Assistance=F1",      {}, "Hilfe=F1", "Ayuda=F1", "Auxilium=F1"}},
};
// clang-format on

} // namespace

Conjugation::Conjugation() : Window("Conjugation", "conjugation")
{
    makeControls();
    layOut();
    connectControls();
    shell::applyDesignedCaptions(*this, Captions);
    shell::registerDrill(shell::exercise::Conjugation, *this);
}

Conjugation::~Conjugation()
{
    shell::unregisterDrill(shell::exercise::Conjugation);
}

void Conjugation::makeControls()
{
    title_ = makeLabel(this, "TitleLabel");
    tense_ = makeLabel(this, "TenseLabel");
    verb_ = makeLabel(this, "VerbLabel");
    score_ = makeLabel(this, "ScoreLabel");
    shell::setType(*title_, shell::FormType);
    shell::setType(*tense_, shell::FormType);
    shell::setBoldType(*verb_, shell::TitleType);
    shell::setBoldType(*score_, shell::HeadingType);
    for (int i = 0; i < BoxCount; ++i) {
        const auto index = static_cast<std::size_t>(i);
        boxes_.at(index) = new AnswerBox(this);
        boxes_.at(index)->setObjectName(QStringLiteral("ConjText%1").arg(i));
        glosses_.at(index) = new QLabel(this);
        glosses_.at(index)->setObjectName(QStringLiteral("Ctransl%1").arg(i));
        glosses_.at(index)->setWordWrap(true);
        shell::setType(*glosses_.at(index), shell::NoteType);
    }
    continue_ = makeButton(this, "Ccontinue");
    question_ = makeButton(this, "ConjQuestion");
    quit_ = makeButton(this, "Cquit");
    question_->setText(QStringLiteral("?"));
    question_->setAccessibleName(QStringLiteral("Show the answer"));
}

void Conjugation::layOut()
{
    auto* const rows = new QVBoxLayout(centredBlock(LargestBlock));
    rows->setContentsMargins(shell::WideSpace, shell::LargeSpace, shell::WideSpace, shell::LargeSpace);
    rows->setSpacing(shell::MediumSpace);
    rows->addLayout(headingRows());
    rows->addSpacing(shell::SmallSpace);
    rows->addLayout(answerGrid());
    rows->addStretch();
    rows->addLayout(buttonRow());
}

QBoxLayout* Conjugation::headingRows()
{
    auto* const names = new QVBoxLayout;
    names->setSpacing(shell::HairSpace);
    names->addWidget(title_);
    names->addWidget(verb_);
    names->addWidget(tense_);
    auto* const heading = new QHBoxLayout;
    heading->addLayout(names, 1);
    heading->addWidget(score_, 0, Qt::AlignRight | Qt::AlignTop);
    return heading;
}

QGridLayout* Conjugation::answerGrid()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::LargeSpace);
    grid->setVerticalSpacing(shell::SmallSpace);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->addWidget(makeLabel(this, "Singular"), 0, 1);
    grid->addWidget(makeLabel(this, "Plural"), 0, 2);
    for (int person = 0; person < PersonsOfNumber; ++person) {
        const int row = 1 + 2 * person;
        const auto singular = static_cast<std::size_t>(person);
        const std::size_t plural = singular + PersonsOfNumber;
        QLabel* const label = makeLabel(this, PersonRows.at(singular));
        label->setBuddy(boxes_.at(singular));
        grid->addWidget(label, row, 0);
        grid->addWidget(boxes_.at(singular), row, 1);
        grid->addWidget(boxes_.at(plural), row, 2);
        grid->addWidget(glosses_.at(singular), row + 1, 1);
        grid->addWidget(glosses_.at(plural), row + 1, 2);
        grid->setRowMinimumHeight(row + 1, QFontMetrics(font()).lineSpacing() + shell::SmallSpace);
    }
    return grid;
}

QBoxLayout* Conjugation::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(makeLabel(this, "HelpLabel"));
    row->addStretch();
    row->addWidget(continue_);
    row->addWidget(question_);
    row->addWidget(quit_);
    return row;
}

void Conjugation::connectControls()
{
    for (int i = 0; i < BoxCount; ++i) {
        const AnswerBox* const box = boxes_.at(static_cast<std::size_t>(i));
        connect(box, &AnswerBox::focusReceived, this, [this, i] { boxReceivedFocus(i); });
        connect(box, &AnswerBox::hintRequested, this, &Conjugation::hint);
        connect(box, &AnswerBox::returnPressed, this, &Conjugation::check);
    }
    connect(continue_, &QPushButton::clicked, this, &Conjugation::check);
    connect(question_, &QPushButton::clicked, this, &Conjugation::hint);
    connect(quit_, &QPushButton::clicked, this, &Conjugation::quit);
}

void Conjugation::open()
{
    shell::applyDesignedCaptions(*this, Captions);
    shell::applyCaptions(*this, Captions);
    emptyBoxes();
    score_->clear();
    if (shell::settings.QuestionOrder == shell::question_order::Random &&
        currentParadigm.SingleTenseMode == 0)
        boxes_.front()->lookGrey();
    showQuestion();
    showInMainWindowState();
    focusQuestion();
}

void Conjugation::becameActive()
{
    showQuestion();
}

AnswerBox& Conjugation::askedBox()
{
    return *boxes_.at(static_cast<std::size_t>(conjugationDrill.PersonIndex));
}

void Conjugation::showQuestion()
{
    setQuestion();
    setWindowTitle(shell::fromUtf8(currentParadigm.WindowTitle));
    title_->setText(shell::fromUtf8(verbs::verbTables.ClassTitles[currentParadigm.ConjugationCode]));
    tense_->setText(shell::fromUtf8(currentParadigm.TenseLabel));
    verb_->setText(shell::fromUtf8(currentParadigm.VerbLabel));
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const bool asked = boxes_.at(i) == &askedBox();
        if (!asked && !answered_.at(i))
            boxes_.at(i)->lookIdle();
        boxes_.at(i)->setAsked(asked && !shell::pausing());
    }
}

void Conjugation::showGloss(int box)
{
    const auto index = static_cast<std::size_t>(box);
    if (const auto gloss = glossOfPerson(box + 1))
        glosses_.at(index)->setText(shell::fromUtf8(*gloss));
    boxes_.at(index)->setAccessibleName(
        shell::fromUtf8(conjugationDrill.DrillHeading + ", " + verbs::verbTables.PersonLabels[box + 1]));
}

// Only the box of the person asked may hold the focus.
void Conjugation::boxReceivedFocus(int box)
{
    buildDrillHeading();
    showGloss(box);
    conjugationDrill.FocusedBox = static_cast<std::int16_t>(box);
    showQuestion();
    if (box != conjugationDrill.PersonIndex)
        QMetaObject::invokeMethod(this, &Conjugation::focusQuestion, Qt::QueuedConnection);
}

void Conjugation::check()
{
    if (shell::pausing() || !isVisible())
        return;
    const bool right = isRightAnswer(askedBox().text().toStdString());
    holdBoxes();
    Q_EMIT answerJudged(right);
}

void Conjugation::hint()
{
    if (shell::pausing() || !isVisible())
        return;
    const int session = shell::drillSession();
    holdBoxes();
    askedBox().lookRevealed();
    askedBox().setText(shell::fromUtf8(conjugationDrill.CorrectForm));
    askedBox().repaint();
    if (conjugationDrill.CorrectForm.empty())
        platform::current().beep();
    shell::Pause();
    if (session != shell::drillSession())
        return;
    askedBox().lookBlue();
    askAgain();
}

void Conjugation::quit()
{
    emptyBoxes();
    resetAfterLeaving();
    Q_EMIT left();
}

void Conjugation::closeBoxPressed()
{
    quit();
}

void Conjugation::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        quit();
    else
        Window::keyPressEvent(event);
}

void Conjugation::showScore(const std::string& text)
{
    score_->setText(shell::fromUtf8(text));
}

void Conjugation::greyAnsweredBox()
{
    askedBox().lookAnswered();
    answered_.at(static_cast<std::size_t>(conjugationDrill.PersonIndex)) = true;
}

void Conjugation::moveOn()
{
    switch (advanceAfterRightAnswer()) {
    case Advance::NextPerson:
        return;
    case Advance::NextRound:
        emptyBoxes();
        return;
    case Advance::TenseFinished:
        emptyBoxes();
        Q_EMIT left();
        return;
    case Advance::ClassFinished:
        quit();
        return;
    }
}

// A box that has the focus already, or gets it while another window is active, is not told so by Qt.
void Conjugation::focusQuestion()
{
    askedBox().setFocus();
    boxReceivedFocus(conjugationDrill.PersonIndex);
}

void Conjugation::askAgain()
{
    askedBox().clear();
    focusQuestion();
}

void Conjugation::emptyBoxes()
{
    answered_.fill(false);
    for (AnswerBox* const box : boxes_) {
        box->clear();
        box->lookIdle();
    }
    for (QLabel* const gloss : glosses_)
        gloss->clear();
}

// What is typed while an answer is judged or shown belongs to no box.
void Conjugation::holdBoxes()
{
    for (AnswerBox* const box : boxes_)
        box->setReadOnly(true);
}

} // namespace verbdrills
