#pragma once

#include "platform/fault.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace vocabulary {

/// The files that a long one was divided into, in their order, and what kept it from being divided; or, where
/// it is cut off, what it lacks at its end.
struct Division {
    std::vector<std::filesystem::path> lists;
    std::optional<platform::Fault> fault{};
    std::optional<platform::Fault> loss{};
};

/// How many lists so many words make, of `LastCountedWord` words each.
int listsFor(int words);

/// Writes the words of a file that is too long for a list as several lists beside it, which are numbered:
/// "name-1.lst", "name-2.lst". No file is replaced: where a number is taken, the lists bear the next ones
/// that are free side by side. Where that fails, there is a fault, and no list is left.
Division divideList(const std::filesystem::path& path);

} // namespace vocabulary
