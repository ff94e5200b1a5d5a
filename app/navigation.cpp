#include "app/navigation.h"

#include "app/ending.h"
#include "app/hourglass.h"
#include "app/load_step.h"
#include "platform/platform.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"

#include <QApplication>

namespace app {

using shell::MainMenu;

namespace {

constexpr auto HelpCommand = "winhelp.exe morvanti.hlp";

void prepareVerbListAgain()
{
    verbs::readVerbListAgain(verbs::VerbListFileName);
    verbs::repeatVerbEdits();
}

} // namespace

Navigation::Navigation()
{
    qApp->installEventFilter(&keyFilter_);
    connect(&keyFilter_, &KeyFilter::helpRequested, this, &Navigation::showHelp);
    connectMainMenu();
    connectVerbs();
    connectNouns();
    connectQuiz();
    connectVocabulary();
    connectOptions();
}

void Navigation::start()
{
    loadProgram(mainMenu_);
}

void Navigation::connectMainMenu()
{
    connect(&mainMenu_, &MainMenu::vowelLengthSwitched, this, &prepareVerbListAgain);
    connect(&mainMenu_, &MainMenu::exitRequested, this, [this] { exitProgram(mainMenu_); });
    connect(&mainMenu_, &MainMenu::quietEndRequested, this, &endProgramQuietly);
    connect(&mainMenu_, &MainMenu::helpRequested, this, &Navigation::showHelp);
    connect(&mainMenu_, &MainMenu::aboutRequested, this, &Navigation::showAbout);
}

void Navigation::connectVerbs()
{
    connect(&mainMenu_, &MainMenu::conjugationRequested, this, [this] {
        const Hourglass hourglass;
        shell::setVowelMarkForDrill();
        shell::settings.ExerciseType = shell::exercise::Conjugation;
        giveWay();
        verbs_.showConjugationChoose();
    });
    connect(&mainMenu_, &MainMenu::verbManagerRequested, this, [this] {
        giveWay();
        verbs_.showVerbManager();
    });
    connect(&verbs_, &VerbNavigation::left, this, &Navigation::showMainMenu);
    connect(&verbs_, &VerbNavigation::endRequested, this, &endProgramQuietly);
}

void Navigation::connectNouns()
{
    connect(&mainMenu_, &MainMenu::declensionRequested, this, [this] {
        const Hourglass hourglass;
        shell::setVowelMarkForDrill();
        shell::settings.ExerciseType = shell::exercise::Declination;
        giveWay();
        nouns_.showDeclinationChoose();
    });
    connect(&mainMenu_, &MainMenu::pronounsRequested, this, [this] {
        const Hourglass hourglass;
        shell::settings.ExerciseType = shell::exercise::Pronouns;
        giveWay();
        nouns_.showPronounChooser();
    });
    connect(&mainMenu_, &MainMenu::nounQuizRequested, this, [this] {
        giveWay();
        nouns_.showNounQuiz();
    });
    connect(&mainMenu_, &MainMenu::nounManagerRequested, this, [this] {
        giveWay();
        nouns_.showNounManager();
    });
    connect(&nouns_, &NounNavigation::left, this, &Navigation::showMainMenu);
}

void Navigation::connectQuiz()
{
    connect(&mainMenu_, &MainMenu::quizRequested, this, [this] {
        giveWay();
        quiz_.showQuiz();
    });
    connect(&quiz_, &QuizNavigation::left, this, &Navigation::showMainMenu);
}

void Navigation::connectVocabulary()
{
    connect(&mainMenu_, &MainMenu::vocabularyRequested, this, [this] {
        const Hourglass hourglass;
        giveWay();
        vocabulary_.showTester();
    });
    connect(&mainMenu_, &MainMenu::vocabularyManagerRequested, this, [this] {
        giveWay();
        vocabulary_.showManager();
    });
    connect(&vocabulary_, &VocabularyNavigation::left, this, &Navigation::showMainMenu);
}

void Navigation::connectOptions()
{
    connect(&mainMenu_, &MainMenu::delayRequested, &options_, &OptionsNavigation::showDelayInterval);
    connect(&nouns_, &NounNavigation::delayRequested, &options_, &OptionsNavigation::showDelayInterval);
    connect(&mainMenu_, &MainMenu::optionsRequested, &options_, &OptionsNavigation::showOptions);
}

void Navigation::giveWay()
{
    mainMenu_.hide();
}

void Navigation::showMainMenu()
{
    mainMenu_.showInMainWindowState();
}

void Navigation::showHelp()
{
    if (platform::current().startProgram(HelpCommand))
        return;
    if (!help_)
        help_ = std::make_unique<shell::Help>();
    help_->showGuide();
}

void Navigation::showAbout()
{
    if (!about_)
        about_ = std::make_unique<shell::About>();
    about_->open();
}

} // namespace app
