#include "app/command_line.h"

namespace app {

namespace {

constexpr auto Usage =
    "Usage: morvanti [FOLDER]\n"
    "Learn Latin grammar with the word lists in FOLDER; without one, with those in the current\n"
    "folder, or in your own where it has none.\n"
    "  --help      print this\n"
    "  --version   print the version";

} // namespace

CommandLine readCommandLine(std::span<const std::string> arguments)
{
    CommandLine line;
    for (const std::string& argument : arguments) {
        if (argument == "--help")
            line.answer = Usage;
        else if (argument == "--version")
            line.answer = "morvanti " MORVANTI_VERSION;
        else if (argument.starts_with("-"))
            line.fault = "unknown option " + argument;
        else if (line.folder)
            line.fault = "more than one folder: " + argument;
        else
            line.folder = argument;
        if (line.answer || line.fault)
            break;
    }
    return line;
}

} // namespace app
