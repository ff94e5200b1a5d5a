#include "shell/looks_file.h"

#include "platform/field_reader.h"
#include "platform/file_replacement.h"
#include "platform/text_file.h"
#include "shell/looks.h"

#include <algorithm>

namespace shell {

namespace {

constexpr std::string_view TextSizeName = "TextSize";
constexpr std::string_view ShowMacronsName = "ShowMacrons";
constexpr std::string_view FirstStepsDoneName = "FirstStepsDone";
constexpr std::string_view KeepAnswersName = "KeepAnswers";
constexpr std::string_view QuizFirstConjugationName = "QuizFirstConjugation";
constexpr std::string_view QuizPresentName = "QuizPresent";

void takeTextSize(std::string_view value)
{
    for (const int size : TextSizes)
        if (value == std::to_string(size))
            looks.TextSize = size;
}

template <typename Switch>
void takeSwitch(Switch& kept, std::string_view value)
{
    if (value == "0" || value == "1")
        kept = value == "1";
}

void takeLine(std::string_view line)
{
    const std::string_view name = line.substr(0, line.find('='));
    const std::string_view value = line.substr(std::min(line.size(), name.size() + 1));
    if (name == TextSizeName)
        takeTextSize(value);
    else if (name == ShowMacronsName)
        takeSwitch(looks.ShowMacrons, value);
    else if (name == FirstStepsDoneName)
        takeSwitch(looks.FirstStepsDone, value);
    else if (name == KeepAnswersName)
        takeSwitch(looks.KeepAnswers, value);
    else if (name == QuizFirstConjugationName)
        takeSwitch(looks.QuizFirstConjugation, value);
    else if (name == QuizPresentName)
        takeSwitch(looks.QuizPresent, value);
}

} // namespace

void readLooks(const std::filesystem::path& path)
{
    looks = {};
    platform::FieldReader reader(platform::readTextFile(path).text);
    std::string line;
    while (reader.read(line))
        takeLine(line);
}

std::string looksText()
{
    std::string text;
    const auto line = [&](std::string_view name, int value) {
        text.append(name).append("=").append(std::to_string(value)).append("\r\n");
    };
    line(TextSizeName, looks.TextSize);
    line(ShowMacronsName, looks.ShowMacrons ? 1 : 0);
    line(FirstStepsDoneName, looks.FirstStepsDone ? 1 : 0);
    line(KeepAnswersName, looks.KeepAnswers ? 1 : 0);
    if (looks.QuizFirstConjugation)
        line(QuizFirstConjugationName, *looks.QuizFirstConjugation ? 1 : 0);
    if (looks.QuizPresent)
        line(QuizPresentName, *looks.QuizPresent ? 1 : 0);
    return text;
}

// Nothing that stands in this file is worth a message.
void keepLooks()
{
    static_cast<void>(platform::replaceFile(LooksFileName, looksText()));
}

} // namespace shell
