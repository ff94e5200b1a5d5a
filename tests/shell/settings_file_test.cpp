#include "shell/settings.h"
#include "shell/settings_file.h"
#include "shell/vowel_marks.h"
#include "tests/support/fresh_state.h"

#include <tuple>
#include <vector>

namespace {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using SettingsFile = tests::FreshState;

// A file as the program writes it, with line 2 at index 0 up to line 36.
std::vector<std::string> soundLines()
{
    std::vector<std::string> lines = {"-1", "-1", " 5", "Latin", "NAGDAb", "Random", " 0", "-1"};
    for (int i = 0; i < 27; ++i)
        lines.push_back(i % 2 == 0 ? "-1" : " 0");
    return lines;
}

std::string fileOf(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n")
{
    std::string text = "6" + lineEnd;
    for (const std::string& line : lines)
        text += line + lineEnd;
    return text;
}

bool read(const std::string& text)
{
    settings = {};
    tests::writeFile("morvanti.ini", text);
    return shell::readSettings("morvanti.ini");
}

TEST_F(SettingsFile, IsWrittenByteForByte)
{
    settings.ShowVowelLength = FlagTrue;
    settings.DelaySeconds = 7;
    settings.CurrentLanguage = "German";
    settings.QuizConjInclude[7] = FlagTrue;
    settings.QuizTenseInclude[1] = FlagTrue;
    EXPECT_FALSE(shell::writeSettings("morvanti.ini"));
    EXPECT_EQ(tests::bytesOf("morvanti.ini"),
              "6\r\n-1\r\n 0\r\n 7\r\nGerman\r\nNGDAAb\r\nSequential\r\n 2\r\n-1\r\n"
              " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n-1\r\n"
              "-1\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n"
              " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n 0\r\n");
}

TEST_F(SettingsFile, ReadsWhatItWrote)
{
    for (const char* const lineEnd : {"\r\n", "\n"}) {
        ASSERT_TRUE(read(fileOf(soundLines(), lineEnd)));
        EXPECT_EQ(shell::settingsText(), fileOf(soundLines()));
    }
}

TEST_F(SettingsFile, WritesAnUnknownLanguageSoThatItIsReadBack)
{
    for (const std::string language : {"Latin, German", " Latin", "Latin\t", ""}) {
        auto lines = soundLines();
        lines[3] = '"' + language + '"';
        ASSERT_TRUE(read(fileOf(lines)));
        ASSERT_EQ(settings.CurrentLanguage, language);
        ASSERT_TRUE(read(shell::settingsText())) << language;
        EXPECT_EQ(settings.CurrentLanguage, language);
    }
}

TEST_F(SettingsFile, TakesBlanksAroundNumbersAndQuotesAroundStrings)
{
    auto lines = soundLines();
    lines[2] = "   9  ";
    lines[3] = "\"Spanish\"";
    ASSERT_TRUE(read(fileOf(lines)));
    EXPECT_EQ(settings.DelaySeconds, 9);
    EXPECT_EQ(settings.CurrentLanguage, "Spanish");
}

TEST_F(SettingsFile, MendsADelayOutOfRangeAsItIsRead)
{
    for (const auto& [line, seconds] : std::vector<std::pair<std::string, int>>{
             {" 0", 2}, {"-3", 2}, {" 101", 2}, {" 100", 100}, {" 1", 1}, {" 2147483647", 2}}) {
        auto lines = soundLines();
        lines[2] = line;
        ASSERT_TRUE(read(fileOf(lines)));
        EXPECT_EQ(settings.DelaySeconds, seconds) << line;
    }
}

TEST_F(SettingsFile, FailsAtEveryLineThatIsMissingOrNoNumber)
{
    const auto lines = soundLines();
    for (std::size_t kept = 0; kept < lines.size(); ++kept)
        EXPECT_FALSE(read(fileOf({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(kept)})))
            << kept;
    for (std::size_t bad = 0; bad < lines.size(); ++bad) {
        const bool isString = bad >= 3 && bad <= 5;
        for (const char* const value : {"", "yes", "32768x", "99999999999"}) {
            auto broken = lines;
            broken[bad] = value;
            EXPECT_EQ(read(fileOf(broken)), isString) << bad << value;
        }
    }
    EXPECT_FALSE(shell::readSettings("none.ini"));
}

TEST_F(SettingsFile, KeepsTheQuizEntriesThatWereReadBeforeAFailure)
{
    auto lines = soundLines();
    lines.resize(19);
    ASSERT_FALSE(read(fileOf(lines)));
    shell::applyDefaultSettings();
    EXPECT_EQ(settings.CurrentLanguage, "English");
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.MainWindowState, 2);
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizConjInclude[7], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[2], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[5], FlagFalse);
}

TEST_F(SettingsFile, IsMendedWhereItWasEditedByHand)
{
    settings.CaseOrder = "NADGAB";
    settings.QuestionOrder = "random";
    settings.QuizConjInclude[8] = FlagTrue;
    settings.QuizTenseInclude[20] = FlagTrue;
    shell::mendSettings();
    EXPECT_EQ(settings.CaseOrder, "NGDAAb");
    EXPECT_EQ(settings.QuestionOrder, "Sequential");
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[0], FlagFalse);
}

TEST_F(SettingsFile, ReplacesABadDelayOnlyAfterWritingIt)
{
    settings.DelaySeconds = 0;
    EXPECT_FALSE(shell::writeSettings("morvanti.ini"));
    EXPECT_TRUE(tests::bytesOf("morvanti.ini").starts_with("6\r\n 0\r\n 0\r\n 0\r\n"));
    EXPECT_EQ(settings.DelaySeconds, 15);
}

TEST_F(SettingsFile, MarksVowelsAtStartForTheTwoTruthValuesOnly)
{
    for (const auto& [shown, before, after] : std::vector<std::tuple<int, std::string, std::string>>{
             {-1, "", ":"}, {0, ":", ""}, {1, "", ""}, {1, ":", ":"}}) {
        settings.ShowVowelLength = static_cast<platform::Flag>(shown);
        settings.VowelMark = before;
        shell::setVowelMarkAsShown();
        EXPECT_EQ(settings.VowelMark, after) << shown;
    }
}

} // namespace
