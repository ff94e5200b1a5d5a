#include "app/navigation.h"

#include "app/start_and_end.h"
#include "platform/platform.h"
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
    connect(&keyFilter_, &KeyFilter::helpRequested, this, &Navigation::showHelp);
    const MainMenu* const mainMenu = &common_.mainMenu();
    connect(mainMenu, &MainMenu::vowelLengthSwitched, this, &prepareVerbListAgain);
    connect(mainMenu, &MainMenu::exitRequested, this, [this] { exitProgram(common_.mainMenu()); });
    connect(mainMenu, &MainMenu::quietEndRequested, this, &endProgramQuietly);
    connect(mainMenu, &MainMenu::helpRequested, this, [this] { showHelp(common_.mainMenu()); });
    connect(mainMenu, &MainMenu::delayRequested, this, [this] { common_.openDelayInterval(); });
    connect(mainMenu, &MainMenu::optionsRequested, this, [this] { options_->open(); });
    connect(mainMenu, &MainMenu::aboutRequested, this, [this] { about_->open(); });
}

void Navigation::start()
{
    loadProgram(common_.mainMenu());
}

void Navigation::showHelp(const shell::Window& asking)
{
    if (!platform::current().startProgram(HelpCommand))
        help_->showGuide(asking);
}

} // namespace app
