#include "app/noun_navigation.h"

#include "nouns/declension_drill.h"
#include "nouns/pronoun_drill.h"
#include "shell/drill.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

namespace app {

using nouns::Declination;
using nouns::DeclinationChoose;
using nouns::NounHandler;
using nouns::NounQuiz;
using nouns::PronounChooser;
using nouns::PronounSingular;
using shell::MainMenu;

NounNavigation::NounNavigation(CommonWindows& common) : common_(common)
{
    connect(&common_.mainMenu(), &MainMenu::declensionRequested, this, &NounNavigation::beginToChooseNouns);
    connect(&common_.mainMenu(), &MainMenu::pronounsRequested, this, &NounNavigation::beginToChoosePronouns);
    common_.opens(&MainMenu::nounQuizRequested, this, nounQuiz_);
    common_.opens(&MainMenu::nounManagerRequested, this, nounHandler_);
}

void NounNavigation::joinDeclinationChoose(DeclinationChoose& window)
{
    connect(&window, &DeclinationChoose::chosen, this, &NounNavigation::takeDeclension);
    whenLeft(window, [this] { common_.toMainMenu(); });
}

void NounNavigation::joinDeclination(Declination& window)
{
    common_.joinDrill(window, [this] { declinationChoose_->open(); });
}

void NounNavigation::joinPronounChooser(PronounChooser& window)
{
    connect(&window, &PronounChooser::chosen, this, &NounNavigation::takePronouns);
    whenLeft(window, [this] { common_.toMainMenu(); });
}

void NounNavigation::joinPronounSingular(PronounSingular& window)
{
    common_.joinDrill(window, [this] { pronounChooser_->open(); });
}

void NounNavigation::joinNounQuiz(NounQuiz& window)
{
    common_.mainMenu().endFirstSteps();
    connect(&window, &NounQuiz::optionsRequested, this, [this] { common_.openDelayInterval(); });
    connect(&window, &NounQuiz::left, this, &shell::leaveDrill);
    whenLeft(window, [this] {
        common_.drillIsLeft();
        common_.toMainMenu();
    });
}

void NounNavigation::joinNounHandler(NounHandler& window)
{
    whenLeft(window, [this] { common_.toMainMenu(); });
}

void NounNavigation::beginToChooseNouns()
{
    const Hourglass hourglass;
    shell::setVowelMarkForDrill();
    shell::settings.ExerciseType = shell::exercise::Declination;
    common_.mainMenu().hide();
    declinationChoose_->open();
}

void NounNavigation::takeDeclension(int row)
{
    const Hourglass hourglass;
    if (!nouns::chooseDeclension(row))
        return;
    shell::beginDrill(shell::exercise::Declination);
    declinationChoose_->hide();
    declination_->open();
}

void NounNavigation::beginToChoosePronouns()
{
    const Hourglass hourglass;
    shell::settings.ExerciseType = shell::exercise::Pronouns;
    common_.mainMenu().hide();
    pronounChooser_->open();
}

void NounNavigation::takePronouns(int row)
{
    const Hourglass hourglass;
    if (!nouns::choosePronouns(row))
        return;
    shell::beginDrill(shell::exercise::Pronouns);
    pronounChooser_->hide();
    pronounSingular_->open();
}

} // namespace app
