#pragma once

#include <string_view>

namespace shell {
class MainMenu;
}

namespace app {

/// Heard at start and end.
inline constexpr std::string_view ProgramSound = "VELMOR2.WAV";

/// Ends the program as `ExitButton` does. Where `SaveSettingsOnExit` is false, at once. Else the settings
/// file is written, all windows are hidden, and when sound is on the sound is played to its end, for three
/// seconds at the most. A file that cannot be written is told on standard error, and the exit status is 1.
void exitProgram(shell::MainMenu& mainMenu);

/// Ends the program at once, without saving.
void endProgramQuietly();

} // namespace app
