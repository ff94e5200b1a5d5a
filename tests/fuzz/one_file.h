#pragma once

#include <filesystem>
#include <string_view>

namespace fuzz {

/// Reads one file, whatever its bytes, and ends the process where a promise of its reader is broken. Every
/// target defines it, and it is called with a fake platform, the random generator seeded with a fixed number.
void readFile(const std::filesystem::path& path);

/// Prints the promise and ends the process where it is not kept.
void require(bool kept, std::string_view promise);

} // namespace fuzz
