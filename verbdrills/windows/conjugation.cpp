#include "verbdrills/windows/conjugation.h"

#include "platform/platform.h"
#include "shell/kit/answer_box.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/settings.h"
#include "verbdrills/gloss.h"
#include "verbs/verb_tables.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

namespace verbdrills {

using shell::Caption;
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

Conjugation::Conjugation() : BoxDrill("Conjugation", "conjugation", shell::exercise::Conjugation)
{
    makeControls();
    layOut();
}

void Conjugation::makeControls()
{
    title_ = makeLabel(this, "TitleLabel");
    tense_ = makeLabel(this, "TenseLabel");
    verb_ = makeLabel(this, "VerbLabel");
    shell::setType(*title_, shell::FormType);
    shell::setType(*tense_, shell::FormType);
    shell::setBoldType(*verb_, shell::TitleType);
    for (int i = 0; i < BoxCount; ++i) {
        const auto index = static_cast<std::size_t>(i);
        addBox(this, QStringLiteral("ConjText%1").arg(i));
        glosses_.at(index) = makeLabel(this, qPrintable(QStringLiteral("Ctransl%1").arg(i)));
        glosses_.at(index)->setWordWrap(true);
        shell::setType(*glosses_.at(index), shell::NoteType);
    }
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
    rows->addLayout(helpAndButtons(
        {makeCheckButton("Ccontinue"), makeHintButton("ConjQuestion"), makeQuitButton("Cquit")}));
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
    heading->addWidget(scoreLabel(), 0, Qt::AlignRight | Qt::AlignTop);
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
        QLabel* const label = makeLabel(this, PersonRows.at(singular));
        label->setBuddy(&box(person));
        grid->addWidget(label, row, 0);
        grid->addWidget(&box(person), row, 1);
        grid->addWidget(&box(person + PersonsOfNumber), row, 2);
        grid->addWidget(glosses_.at(singular), row + 1, 1);
        grid->addWidget(glosses_.at(singular + PersonsOfNumber), row + 1, 2);
        grid->setRowMinimumHeight(row + 1, QFontMetrics(font()).lineSpacing() + shell::SmallSpace);
    }
    return grid;
}

void Conjugation::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    emptyRound();
    scoreLabel()->clear();
    if (shell::settings.QuestionOrder == shell::question_order::Random &&
        currentParadigm.SingleTenseMode == 0)
        box(0).lookGrey();
    showQuestion();
    showInMainWindowState();
    focusQuestion();
}

void Conjugation::becameActive()
{
    showQuestion();
}

int Conjugation::askedBoxNumber() const
{
    return conjugationDrill.PersonIndex;
}

void Conjugation::setQuestion()
{
    setConjugationQuestion();
    setWindowTitle(shell::fromUtf8(currentParadigm.WindowTitle));
    title_->setText(shell::fromUtf8(verbs::verbTables.ClassTitles[currentParadigm.ConjugationCode]));
    tense_->setText(shell::fromUtf8(currentParadigm.TenseLabel));
    verb_->setText(shell::fromUtf8(currentParadigm.VerbLabel));
}

void Conjugation::boxEntered(int number)
{
    buildDrillHeading();
    showGloss(number);
    conjugationDrill.FocusedBox = static_cast<std::int16_t>(number);
}

void Conjugation::showGloss(int number)
{
    if (const auto gloss = glossOfPerson(number + 1))
        glosses_.at(static_cast<std::size_t>(number))->setText(shell::fromUtf8(*gloss));
    box(number).setAccessibleName(
        shell::fromUtf8(conjugationDrill.DrillHeading + ", " + verbs::verbTables.PersonLabels[number + 1]));
}

std::optional<bool> Conjugation::judge(const std::string& typed)
{
    return judgeConjugation(typed);
}

const std::string& Conjugation::answer() const
{
    return conjugationDrill.CorrectForm;
}

void Conjugation::answerShown()
{
    if (conjugationDrill.CorrectForm.empty())
        platform::current().beep();
}

void Conjugation::answerHidden()
{
    askedBox().lookBlue();
}

void Conjugation::quit()
{
    emptyRound();
    resetAfterLeaving();
    Q_EMIT left();
}

void Conjugation::moveOn()
{
    switch (advanceAfterRightAnswer()) {
    case Advance::NextPerson:
        return;
    case Advance::NextRound:
        emptyRound();
        return;
    case Advance::TenseFinished:
        emptyRound();
        Q_EMIT left();
        return;
    case Advance::ClassFinished:
        quit();
        return;
    }
}

void Conjugation::emptyRound()
{
    emptyBoxes();
    for (QLabel* const gloss : glosses_)
        gloss->clear();
}

} // namespace verbdrills
