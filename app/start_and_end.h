#pragma once

#include <string_view>

namespace shell {
class MainMenu;
}

namespace app {

/// Heard at start and end.
inline constexpr std::string_view ProgramSound = "VELMOR2.WAV";

/// Reads how the learner likes to see things, to be called before any window is made: each is made in the
/// size of type that was kept.
void loadLooks();

/// The start: reads the word lists and the settings of the working folder, mends what is odd in them, shows
/// them on the main window, shows that window, and plays the sound when sound is on. Files that are missing
/// or broken are passed over silently.
///
/// The word lists are read before the settings, and the noun list only after a sound verb list. So the stems
/// have no marks at first; those of verbs get them when the option is switched, those of the nouns in the
/// file never.
void loadProgram(shell::MainMenu& mainMenu);

/// Ends the program as `ExitButton` does. Where `SaveSettingsOnExit` is false, at once. Else the settings
/// file is written, and beside it what it has no line for, all windows are hidden, and when sound is on the
/// sound is played to its end, for three seconds at the most. A settings file that cannot be written is
/// told on standard error, and the exit status is 1.
void exitProgram(shell::MainMenu& mainMenu);

/// Ends the program at once, without saving.
void endProgramQuietly();

} // namespace app
