#include "app/verb_navigation.h"

#include "app/start_and_end.h"
#include "shell/drill.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/verb_tables.h"

namespace app {

using shell::MainMenu;
using verbdrills::Conjugation;
using verbdrills::ConjugationChoose;
using verbdrills::TenseMoodChooser;
using verbs::VerbManager;

VerbNavigation::VerbNavigation(CommonWindows& common) : common_(common)
{
    connect(&common_.mainMenu(), &MainMenu::conjugationRequested, this, &VerbNavigation::beginToChoose);
    common_.opens(&MainMenu::verbManagerRequested, this, verbManager_);
}

void VerbNavigation::joinConjugationChoose(ConjugationChoose& window)
{
    connect(&window, &ConjugationChoose::chosen, this, &VerbNavigation::takeConjugation);
    whenLeft(window, [this] {
        const Hourglass hourglass;
        common_.toMainMenu();
    });
}

void VerbNavigation::joinTenseMoodChooser(TenseMoodChooser& window)
{
    connect(&window, &TenseMoodChooser::chosen, this, &VerbNavigation::takeTense);
    whenLeft(window, [this] { conjugationChoose_->open(); });
}

void VerbNavigation::joinConjugation(Conjugation& window)
{
    common_.joinDrill(window, [this] { chooseAgain(); });
}

void VerbNavigation::joinVerbManager(VerbManager& window)
{
    connect(&window, &VerbManager::endRequested, this, &endProgramQuietly);
    whenLeft(window, [this] { common_.toMainMenu(); });
}

void VerbNavigation::beginToChoose()
{
    const Hourglass hourglass;
    shell::setVowelMarkForDrill();
    shell::settings.ExerciseType = shell::exercise::Conjugation;
    common_.mainMenu().hide();
    conjugationChoose_->open();
}

void VerbNavigation::takeConjugation(int row)
{
    const Hourglass hourglass;
    switch (verbdrills::chooseConjugation(row)) {
    case verbdrills::ConjugationChoice::None:
        return;
    case verbdrills::ConjugationChoice::SingleTense:
        conjugationChoose_->hide();
        tenseMoodChooser_->open();
        return;
    case verbdrills::ConjugationChoice::Paradigm:
        break;
    }
    shell::beginDrill(shell::exercise::Conjugation);
    verbdrills::generateParadigms();
    verbdrills::beginRound();
    conjugationChoose_->hide();
    conjugation_->open();
}

void VerbNavigation::takeTense(int row)
{
    const Hourglass hourglass;
    if (!verbdrills::chooseTense(row))
        return;
    shell::beginDrill(shell::exercise::Conjugation);
    verbdrills::generateParadigms();
    tenseMoodChooser_->hide();
    conjugation_->open();
}

void VerbNavigation::chooseAgain()
{
    if (verbs::currentParadigm.SingleTenseMode == 1)
        tenseMoodChooser_->open();
    else
        conjugationChoose_->open();
}

} // namespace app
