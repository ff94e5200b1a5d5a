#pragma once

#include "platform/fault.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace shell {

inline constexpr std::string_view SettingsFileName = "morvanti.ini";

/// Reads `settings` from a settings file: 36 lines without keys, whose meaning is their number. A word is
/// what stands before a comma or the line's end, blanks included, without the quotes around it. A delay out
/// of range becomes 2 as soon as it is read. Returns false at the first value that is missing or is not what
/// it should be; what was read before it stays.
bool readSettings(const std::filesystem::path& path);

/// What `settings` becomes where the settings file cannot be read to its end. Entries 1 and above of the
/// inclusion tables keep what was read.
void applyDefaultSettings();

/// Mends what a settings file edited by hand may hold: an unknown case order or question order, and a quiz
/// without a class (entries 0 to 7) or without a tense (entries 0 to 20).
void mendSettings();

/// The text of the settings file for `settings` as it stands: 36 lines, each ended by CR LF.
std::string settingsText();

/// Replaces the settings file. Afterwards a delay out of range becomes 15, in memory only: the next start
/// reads what was out of range, and makes it 2. Returns the fault that kept the file from being written; the
/// old one is whole then.
std::optional<platform::Fault> writeSettings(const std::filesystem::path& path);

} // namespace shell
