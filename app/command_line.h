#pragma once

#include <optional>
#include <span>
#include <string>

namespace app {

/// What the program was called with.
struct CommandLine {
    /// The folder to work in, where one is given.
    std::optional<std::string> folder;

    /// A text to print instead of running: the version, or how to call the program.
    std::optional<std::string> answer;

    /// Why the call cannot be followed.
    std::optional<std::string> fault;
};

/// Reads the arguments after the program's name.
CommandLine readCommandLine(std::span<const std::string> arguments);

} // namespace app
