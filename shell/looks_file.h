#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace shell {

/// It stands beside the settings file, in the working folder.
inline constexpr std::string_view LooksFileName = "looks.ini";

/// Reads `looks` from a file of lines such as "TextSize=115". A line with another name, or with a value that
/// is none, is passed over; what no line gives, and all where there is no file, has its first state.
void readLooks(const std::filesystem::path& path);

/// The text of that file for `looks` as it stands: a line for each value that is there, ended by CR LF.
std::string looksText();

/// Replaces the file in the working folder, silently leaving it as it was where it cannot be written.
void keepLooks();

} // namespace shell
