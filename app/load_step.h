#pragma once

namespace shell {
class MainMenu;
}

namespace app {

/// The start: reads the word lists and the settings of the working folder, mends what is odd in them, shows
/// them on the main window, shows that window, and plays the start-up sound when sound is on. Files that are
/// missing or broken are passed over silently. The word lists are read before the settings, and the noun list
/// only after a sound verb list: both are meant. So the stems are without marks at first; those of verbs get
/// them when the option is switched, those of the nouns in the file never.
void loadProgram(shell::MainMenu& mainMenu);

} // namespace app
