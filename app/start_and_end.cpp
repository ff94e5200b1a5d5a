#include "app/start_and_end.h"

#include "app/application.h"
#include "nouns/noun_list_file.h"
#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/kit/text_size.h"
#include "shell/looks.h"
#include "shell/looks_file.h"
#include "shell/settings.h"
#include "shell/settings_file.h"
#include "shell/sound.h"
#include "shell/vowel_marks.h"
#include "shell/windows/main_menu.h"
#include "verbs/verb_list_file.h"

#include <QApplication>
#include <QElapsedTimer>

#include <cstdlib>

namespace app {

namespace {

constexpr std::chrono::milliseconds LongestSound{3000};

// The entries of the verb quiz for which the settings file has no line stand beside it.
void applyFirstEntriesOfQuiz()
{
    if (shell::looks.QuizFirstConjugation)
        shell::settings.QuizConjInclude[0] = platform::flagOf(*shell::looks.QuizFirstConjugation);
    if (shell::looks.QuizPresent)
        shell::settings.QuizTenseInclude[0] = platform::flagOf(*shell::looks.QuizPresent);
}

void keepFirstEntriesOfQuiz()
{
    const shell::Looks before = shell::looks;
    shell::looks.QuizFirstConjugation = shell::settings.QuizConjInclude[0] == platform::FlagTrue;
    shell::looks.QuizPresent = shell::settings.QuizTenseInclude[0] == platform::FlagTrue;
    if (shell::looks != before)
        shell::keepLooks();
}

void hideAllWindows()
{
    for (QWidget* const window : QApplication::topLevelWidgets())
        window->hide();
}

void waitForSound()
{
    platform::Platform& platform = platform::current();
    QElapsedTimer timer;
    timer.start();
    auto left = LongestSound;
    while (platform.soundIsPlaying() && !platform.ending() && left.count() > 0) {
        platform.waitForEvents(left);
        left = LongestSound - std::chrono::milliseconds(timer.elapsed());
    }
}

} // namespace

void loadLooks()
{
    shell::readLooks(shell::LooksFileName);
    shell::applyTextSize();
}

void loadProgram(shell::MainMenu& mainMenu)
{
    if (verbs::readVerbList(verbs::VerbListFileName)) // sic: before the settings
        nouns::readNounList(nouns::NounListFileName);
    if (shell::readSettings(shell::SettingsFileName))
        applyFirstEntriesOfQuiz();
    else
        shell::applyDefaultSettings();
    shell::mendSettings();
    shell::setVowelMarkAsShown();
    mainMenu.showSettings();
    mainMenu.showInMainWindowState();
    shell::soundIfOn(ProgramSound);
}

void exitProgram(shell::MainMenu& mainMenu)
{
    shell::leaveDrill();
    mainMenu.recordWindowState();
    platform::Platform& platform = platform::current();
    if (shell::settings.SaveSettingsOnExit == platform::FlagFalse) {
        platform.endProgram(EXIT_SUCCESS);
        return;
    }
    const auto fault = shell::writeSettings(shell::SettingsFileName);
    if (fault) {
        tellFault(fault->message());
        platform.endProgram(EXIT_FAILURE);
        return;
    }
    keepFirstEntriesOfQuiz();
    shell::settings.SettingsChangeCount = 0;
    hideAllWindows();
    shell::soundIfOn(ProgramSound);
    waitForSound();
    platform.endProgram(EXIT_SUCCESS);
}

void endProgramQuietly()
{
    shell::leaveDrill();
    platform::current().endProgram(EXIT_SUCCESS);
}

} // namespace app
