#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace app {

/// Goes to the folder that the program works in: `folder` where it is given; the current one where that has a
/// verb list; else the learner's own, `$XDG_DATA_HOME/morvanti` (by default `~/.local/share/morvanti`), which
/// is filled from the samples once, without ever replacing a file or leaving half of one. Where that cannot
/// be had, the current one stays. Returns why a folder that was given cannot be entered.
std::optional<std::string> enterWorkingFolder(const std::optional<std::string>& folder,
                                              const std::filesystem::path& samples);

/// The learner's own folder; empty where neither variable of the environment tells it.
std::filesystem::path ownFolder();

/// The folder of the samples: beside an installed program, or in the source tree of one that was just built.
/// Empty where there is none.
std::filesystem::path samplesBeside(const std::filesystem::path& programFolder);

} // namespace app
