#include "shell/settings.h"
#include "shell/settings_file.h"
#include "tests/support/fresh_state.h"

namespace {

using platform::FlagTrue;
using shell::settings;
using SettingsFile = tests::FreshState;
using Lines = std::vector<std::string>;

enum Line : std::size_t { Delay = 3, Language, CaseOrder, QuestionOrder, LineCount = 36 };

// A file as the program writes it, nine lines before seven classes and twenty tenses, but for one line.
Lines linesWith(std::size_t changed = 0, const std::string& value = "6")
{
    Lines lines = {"6", "-1", "-1", " 5", "Latin", "NAGDAb", "Random", " 0", "-1"};
    while (lines.size() < LineCount)
        lines.push_back(lines.size() % 2 == 1 ? "-1" : " 0");
    lines.at(changed) = value;
    return lines;
}

std::string fileOf(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

bool read(const Lines& lines)
{
    settings = {};
    tests::writeFile("morvanti.ini", fileOf(lines));
    return shell::readSettings("morvanti.ini");
}

TEST_F(SettingsFile, KeepsWordsWithTheirBlanksBareOrInQuotesAndIsMendedWhereItWasEditedByHand)
{
    // clang-format off
    const std::vector<std::tuple<Line, std::string, std::string>> cases = {
        {Delay, " 0", " 2"}, {Delay, "-3", " 2"}, {Delay, " 101", " 2"}, {Delay, " 100", " 100"}, {Delay, " 1", " 1"},
        {Language, "\"Latin\"", "Latin"}, {Language, "\" Latin\"", " Latin"}, {Language, " Latin\t", " Latin\t"},
        {Language, "", ""}, {Language, "\"", "\""}, {Language, "\"\"", ""},
        {CaseOrder, "NADGAB", "NGDAAb"}, {CaseOrder, "NAGDAb ", "NGDAAb"},
        {QuestionOrder, "random", "Sequential"}, {QuestionOrder, " Random", "Sequential"}};
    // clang-format on
    for (const auto& [line, word, kept] : cases) {
        EXPECT_TRUE(read(linesWith(line, word))) << word;
        shell::mendSettings();
        EXPECT_EQ(shell::settingsText(), fileOf(linesWith(line, kept))) << word;
    }
    EXPECT_EQ(settings.QuizConjInclude[7] + settings.QuizTenseInclude[20], 2 * FlagTrue);
    settings.DelaySeconds = 0;
    EXPECT_FALSE(shell::writeSettings("morvanti.ini"));
    EXPECT_EQ(settings.DelaySeconds, 15) << "mended once it is written";
    EXPECT_FALSE(read(linesWith(Language, "Latin, German")));
    EXPECT_EQ(settings.CurrentLanguage, "Latin");
    settings = {};
    settings.QuizConjInclude[8] = settings.QuizTenseInclude[20] = FlagTrue;
    shell::mendSettings();
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[0], platform::FlagFalse);
}

TEST_F(SettingsFile, FailsAtEveryLineThatIsMissingOrNoNumber)
{
    for (std::size_t bad = 1; bad < LineCount; ++bad) {
        for (const char* const value : {"", "yes", "32768x", "99999999999"})
            EXPECT_EQ(read(linesWith(bad, value)), Language <= bad && bad <= QuestionOrder) << bad << value;
        Lines lines = linesWith();
        lines.resize(bad);
        EXPECT_FALSE(read(lines)) << bad;
    }
    EXPECT_FALSE(shell::readSettings("none.ini"));
}

} // namespace
