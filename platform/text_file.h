#pragma once

#include "platform/fault.h"

#include <filesystem>
#include <optional>
#include <string>

namespace platform {

/// The longest file that is read, in bytes: far more than any list holds. What comes after is not read.
inline constexpr std::size_t LongestFile = std::size_t{4} << 20U;

/// What was read of a text file, as UTF-8, and what kept it from being read.
struct TextFile {
    std::string text;
    std::optional<Fault> fault;
};

/// Reads a text file whole. Only regular files are opened, so that no pipe or device can hold the program up.
TextFile readTextFile(const std::filesystem::path& path);

} // namespace platform
