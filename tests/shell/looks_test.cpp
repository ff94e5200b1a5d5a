#include "shell/looks_file.h"
#include "shell/macrons.h"
#include "tests/support/fresh_state.h"

namespace {

using Looks = tests::FreshState;

TEST_F(Looks, ArePlainLinesOfWhichABadOneGivesNothingAndNoFileTheFirstState)
{
    const std::string first = "TextSize=100\r\nShowMacrons=0\r\nFirstStepsDone=0\r\nKeepAnswers=1\r\n";
    const std::string kept = "TextSize=175\r\nShowMacrons=1\r\nFirstStepsDone=1\r\nKeepAnswers=0\r\n";
    const std::pair<std::string, std::string> files[] = {
        {kept, kept},
        {"\xEF\xBB\xBF[looks]\n  FirstStepsDone=1\nTextSize=175 \n\nColour=red\nShowMacrons=1\nKeepAnswers=0",
         kept},
        {"TextSize=110\nTextSize=\nTextSize=1e2\nShowMacrons=yes\nFirstStepsDone\n=1\n==", first},
        {"textsize=175\nTextSize=-80\nTextSize=99999999999999999999\nShowMacrons=-1", first},
        {std::string("\0\xFF,\"", 4), first}};
    for (const auto& [bytes, read] : files) {
        tests::writeFile("looks.ini", bytes);
        shell::readLooks("looks.ini");
        EXPECT_EQ(shell::looksText(), read) << bytes;
    }
    shell::readLooks("none.ini");
    EXPECT_EQ(shell::looksText(), first);
}

TEST_F(Looks, WriteMacronsAsMarksInEveryGuiseAndMarksAsMacronsOverVowelsAlone)
{
    const std::array<std::string, 3> texts[] = {
        // typed, as marks, shown with macrons
        {"āēīōūȳ ĀĒĪŌŪȲ", "a:e:i:o:u:y: A:E:I:O:U:Y:", "āēīōūȳ ĀĒĪŌŪȲ"},
        {"ama\u0304vi\u0304, REGE\u0304S", "ama:vi:, REGE:S", "amāvī, REGĒS"},
        {"a:ma\u0304:s x\u0304 \u0304 12:30 s:", "a:ma::s x\u0304 \u0304 12:30 s:",
         "āmā:s x\u0304 \u0304 12:30 s:"},
        {"Mädchen, ă, æ: ǎ", "Mädchen, ă, æ: ǎ", "Mädchen, ă, æ: ǎ"},
        {":", ":", ":"}};
    for (const auto& [typed, marks, macrons] : texts) {
        EXPECT_EQ(shell::marksForMacrons(typed), marks);
        EXPECT_EQ(shell::macronsForMarks(marks), macrons);
        EXPECT_EQ(shell::marksForMacrons(shell::macronsForMarks(marks)), marks);
    }
}

} // namespace
