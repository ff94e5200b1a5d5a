#include "app/load_step.h"

#include "app/ending.h"
#include "nouns/noun_list_file.h"
#include "shell/settings_file.h"
#include "shell/sound_control.h"
#include "shell/vowel_marks.h"
#include "shell/windows/main_menu.h"
#include "verbs/verb_list_file.h"

namespace app {

void loadProgram(shell::MainMenu& mainMenu)
{
    if (verbs::readVerbList(verbs::VerbListFileName))
        nouns::readNounList(nouns::NounListFileName);
    if (!shell::readSettings(shell::SettingsFileName))
        shell::applyDefaultSettings();
    shell::mendSettings();
    shell::setVowelMarkAsShown();
    mainMenu.showSettings();
    mainMenu.showInMainWindowState();
    shell::soundIfOn(ProgramSound);
}

} // namespace app
