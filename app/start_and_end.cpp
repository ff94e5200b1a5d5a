#include "app/start_and_end.h"

#include "app/application.h"
#include "nouns/noun_list_file.h"
#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/kit/text_size.h"
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
    if (!shell::readSettings(shell::SettingsFileName))
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
