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

} // namespace shell
