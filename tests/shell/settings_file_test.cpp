#include "shell/settings.h"
#include "shell/settings_file.h"
#include "tests/support/fresh_state.h"

#include <vector>

namespace {

using platform::FlagTrue;
using shell::settings;
using SettingsFile = tests::FreshState;
using Lines = std::vector<std::string>;

constexpr std::size_t DelayLine = 3;
constexpr std::size_t LanguageLine = 4;

// A file as the program writes it, nine lines before seven classes and twenty tenses, but for one line.
Lines linesWith(std::size_t changed = 0, const std::string& value = "6")
{
    Lines lines = {"6", "-1", "-1", " 5", "Latin", "NAGDAb", "Random", " 0", "-1"};
    while (lines.size() < 36)
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

TEST_F(SettingsFile, IsWrittenByteForByteAndABadDelayMendedOnlyAfterwards)
{
    settings.ShowVowelLength = FlagTrue;
    settings.DelaySeconds = 0;
    settings.CurrentLanguage = "German";
    settings.QuizConjInclude[7] = FlagTrue;
    settings.QuizTenseInclude[1] = FlagTrue;
    EXPECT_FALSE(shell::writeSettings("morvanti.ini"));
    EXPECT_EQ(tests::bytesOf("morvanti.ini"),
              "6\r\n-1\r\n 0\r\n 0\r\nGerman\r\nNGDAAb\r\nSequential\r\n 2\r\n-1\r\n"
              " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n-1\r\n"
              "-1\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n"
              " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n");
    EXPECT_EQ(settings.DelaySeconds, 15);
}

TEST_F(SettingsFile, HasItsWordsWithTheirBlanksBareOrInQuotesAndIsWrittenBare)
{
    for (const auto& [line, word] : {std::pair{"Latin", "Latin"},
                                     {"\"Latin\"", "Latin"},
                                     {" Latin\t", " Latin\t"},
                                     {"\" Latin\"", " Latin"},
                                     {"", ""},
                                     {"\"", "\""}}) {
        ASSERT_TRUE(read(linesWith(LanguageLine, line))) << line;
        EXPECT_EQ(shell::settingsText(), fileOf(linesWith(LanguageLine, word)));
    }
    EXPECT_FALSE(read(linesWith(LanguageLine, "Latin, German")));
    EXPECT_EQ(settings.CurrentLanguage, "Latin");
}

TEST_F(SettingsFile, FailsAtEveryLineThatIsMissingOrNoNumber)
{
    Lines lines = linesWith();
    for (std::size_t bad = 1; bad < lines.size(); ++bad)
        for (const char* const value : {"", "yes", "32768x", "99999999999"})
            EXPECT_EQ(read(linesWith(bad, value)), LanguageLine <= bad && bad <= LanguageLine + 2)
                << bad << value;
    while (!lines.empty()) {
        lines.pop_back();
        EXPECT_FALSE(read(lines)) << lines.size();
    }
    EXPECT_FALSE(shell::readSettings("none.ini"));
}

TEST_F(SettingsFile, KeepsTheQuizEntriesThatWereReadBeforeAFailure)
{
    Lines lines = linesWith();
    lines.resize(20);
    ASSERT_FALSE(read(lines));
    shell::applyDefaultSettings();
    std::ranges::copy(Lines{"6", " 0", " 0", " 2", "English", "NGDAAb", "Sequential", " 2", "-1"},
                      lines.begin());
    lines.resize(36, " 0");
    EXPECT_EQ(shell::settingsText(), fileOf(lines));
    EXPECT_EQ(settings.QuizConjInclude[0] + settings.QuizTenseInclude[0], 2 * FlagTrue);
}

TEST_F(SettingsFile, IsMendedWhereItWasEditedByHand)
{
    for (const auto& [line, seconds] :
         {std::pair{" 0", 2}, {"-3", 2}, {" 101", 2}, {" 100", 100}, {" 1", 1}}) {
        ASSERT_TRUE(read(linesWith(DelayLine, line)));
        EXPECT_EQ(settings.DelaySeconds, seconds) << line;
    }
    settings = {};
    settings.QuizConjInclude[8] = FlagTrue;
    settings.QuizTenseInclude[20] = FlagTrue;
    for (const auto& [cases, questions] : {std::pair{"NADGAB", "random"}, {"NAGDAb ", " Random"}}) {
        settings.CaseOrder = cases;
        settings.QuestionOrder = questions;
        shell::mendSettings();
        EXPECT_EQ(settings.CaseOrder + settings.QuestionOrder, "NGDAAbSequential");
    }
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[0], platform::FlagFalse);
}

} // namespace
