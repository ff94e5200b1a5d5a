#pragma once

#include <string_view>

namespace shell {

/// What the main window's menus change in `settings`. The first three raise `SettingsChangeCount` by one.
void chooseLanguage(std::string_view language);
void chooseCaseOrder(std::string_view caseOrder);
void chooseQuestionOrder(std::string_view questionOrder);

/// Sets `SoundOn` and raises `SettingsChangeCount` by one.
void switchSound(bool on);

/// Sets `ShowVowelLength`, and `VowelMark` with it; the verb list has to be read again afterwards.
void switchVowelLength(bool shown);

/// Sets `SaveSettingsOnExit`.
void switchSaving(bool saved);

/// Sets `VowelMark` before a noun or verb drill: ":" where `ShowVowelLength` is exactly 1, else "". The menu
/// stores true as -1, so that in normal use the mark is emptied here and the generators set it: this is
/// meant.
void setVowelMarkForDrill();

/// Sets `VowelMark` before forms are generated: ":" where `ShowVowelLength` is true. It never empties it.
void setVowelMarkWhereShown();

/// Sets `VowelMark` at start, and when the option is switched: ":" where `ShowVowelLength` is true, "" where
/// it is false.
void setVowelMarkAsShown();

} // namespace shell
