#include "verbdrills/windows/conjugation.h"

#include "platform/platform.h"
#include "shell/kit/answer_box.h"
#include "shell/kit/captions.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/settings.h"
#include "verbdrills/gloss.h"
#include "verbdrills/tense_names.h"
#include "verbdrills/verb_records.h"
#include "verbs/verb_tables.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace verbdrills {

using shell::Caption;
using shell::makeLabel;
using shell::Part;
using verbs::currentParadigm;

namespace {

constexpr QSize LargestBlock{108, shell::AsItsLines};

// As long as aedificatus -a -um essem.
constexpr int CharactersOfForm = 27;

constexpr int PersonsOfNumber = 3;
constexpr std::array PersonRows = {"FirstPerson", "SecondPerson", "ThirdPerson"};

// clang-format off
constexpr std::array Captions = {
    //                        English     French                Italian  German    Spanish     Latin
    Caption{"Ccontinue",     {"&OK",      "&Oui",               {}, "&OK",      "&Si",      "&Ita"}},
    Caption{"Cquit",         {"&Quit",    "&Non",               {}, "&Abbruch", "&Salir",   "&Reverte!"}},
    Caption{"FirstPerson",   {"1st",      "1",                  {}, "1.",       "1a",       "i"}},
    Caption{"SecondPerson",  {"2nd",      "2",                  {}, "2.",       "2a",       "ii"}},
    Caption{"ThirdPerson",   {"3rd",      "3",                  {}, "3.",       "3a",       "iii"}},
    Caption{"Singular",      {"Singular", "Numerus Singularis", {}, "Einzahl",  "Singular", "Numerus Singularis"}}, // sic: French
    Caption{"Plural",        {"Plural",   "Numerus Pluralis",   {}, "Merhzahl", "Plural",   "Numerus Pluralis"}},   // sic: French and German
    Caption{"HelpLabel",     {"Help=F1",  "Assistance=F1",      {}, "Hilfe=F1", "Ayuda=F1", "Auxilium=F1"}},
};

//                                     English             French               Italian                German                Spanish               Latin
constexpr shell::LanguageTexts TenseOf{"tense %1 of %2",  "temps %1 sur %2",   "tempo %1 di %2",      "Zeitform %1 von %2",   "tiempo %1 de %2",    "tempus %1 ex %2"};
constexpr shell::LanguageTexts ClassOf{"class %1 of %2",  "classe %1 sur %2",  "classe %1 di %2",     "Konjugation %1 von %2",   "clase %1 de %2",     "coniugatio %1 ex %2"};
// clang-format on

} // namespace

Conjugation::Conjugation() : BoxDrill("Conjugation", "conjugation", shell::exercise::Conjugation)
{
    makeControls();
    layOut();
}

void Conjugation::makeControls()
{
    title_ = makeLabel(this, "TitleLabel", shell::FormType);
    tense_ = makeLabel(this, "TenseLabel", shell::FormType);
    verb_ = shell::makeHeading(this, "VerbLabel", shell::QuestionType);
    for (std::size_t i = 0; i < glosses_.size(); ++i) {
        addBox(this, QStringLiteral("ConjText%1").arg(i));
        shell::setLeastWidth(box(static_cast<int>(i)), CharactersOfForm);
        glosses_.at(i) = makeLabel(this, QStringLiteral("Ctransl%1").arg(i), shell::NoteType);
        glosses_.at(i)->setWordWrap(true);
    }
}

void Conjugation::layOut()
{
    QBoxLayout* const names = shell::columnOf(shell::HairSpace, {title_, verb_, tense_});
    layOutLines(LargestBlock, shell::DrillMargins,
                {withScore({names, 1}), Part::space(shell::SmallSpace), answerGrid(), whyLabel(),
                 helpAndButtons({makeCheckButton("Ccontinue"), makeQuestionButton("ConjQuestion"),
                                 makeQuitButton("Cquit")})});
}

QGridLayout* Conjugation::answerGrid()
{
    QGridLayout* const grid = shell::gridOf(shell::LargeSpace, shell::SmallSpace);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->addWidget(makeLabel(this, "Singular"), 0, 1);
    grid->addWidget(makeLabel(this, "Plural"), 0, 2);
    for (int person = 0; person < PersonsOfNumber; ++person) {
        const int row = 1 + 2 * person;
        const auto singular = static_cast<std::size_t>(person);
        grid->addWidget(shell::makeLabelOf(&box(person), PersonRows.at(singular)), row, 0);
        grid->addWidget(&box(person), row, 1);
        grid->addWidget(&box(person + PersonsOfNumber), row, 2);
        grid->addWidget(glosses_.at(singular), row + 1, 1);
        grid->addWidget(glosses_.at(singular + PersonsOfNumber), row + 1, 2);
    }
    shell::keepMeasure(*grid, "glosses", [=, this](shell::Growth growth) {
        for (int person = 0; person < PersonsOfNumber; ++person)
            grid->setRowMinimumHeight(2 + 2 * person,
                                      fontMetrics().lineSpacing() + qRound(shell::SmallSpace * growth));
    });
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
    verb_->setText(shell::latinText(currentParadigm.VerbLabel));
    if (currentParadigm.SingleTenseMode == 1)
        showPlace(ClassOf, placeOfClass());
    else
        showPlace(TenseOf, placeOfTense());
}

void Conjugation::boxEntered(int number)
{
    buildDrillHeading();
    clearGlossPassedBy();
    showGloss(number);
    nameForTheEar(number);
    conjugationDrill.FocusedBox = static_cast<std::int16_t>(number);
}

// A box that only sent the focus on shows no gloss beside the one that is asked; an answered one keeps its
// own.
void Conjugation::clearGlossPassedBy()
{
    const int last = conjugationDrill.FocusedBox;
    if (last != askedBoxNumber() && box(last).text().isEmpty())
        glosses_.at(static_cast<std::size_t>(last))->clear();
}

void Conjugation::showGloss(int number)
{
    if (const auto gloss = glossOfPerson(number + 1))
        glosses_.at(static_cast<std::size_t>(number))->setText(shell::fromUtf8(*gloss));
}

// The titles of the irregular verbs would name esse for velle, velle for esse, and ferre not at all.
void Conjugation::nameForTheEar(int number)
{
    const auto& tables = verbs::verbTables;
    const int verbClass = currentParadigm.ConjugationCode;
    const std::string heading =
        verbClass > verbs::LastRegularClass
            ? tables.Infinitive[verbClass] + ": " + tables.TenseTitles[currentParadigm.TenseMoodCode]
            : conjugationDrill.DrillHeading;
    box(number).setAccessibleName(shell::fromUtf8(heading + ", " + tables.PersonLabels[number + 1]));
}

std::optional<bool> Conjugation::judge(const std::string& typed)
{
    const bool right = judgeConjugation(typed);
    shell::tellAnswer(recordOfConjugation(typed, right));
    return right;
}

std::string Conjugation::answer() const
{
    return conjugationDrill.CorrectForm;
}

std::optional<shell::LanguageTexts> Conjugation::answersAnother(const std::string& typed) const
{
    return otherEndingOf(conjugationDrill.PersonIndex + verbs::FirstSingular, personsWithForm(typed));
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
