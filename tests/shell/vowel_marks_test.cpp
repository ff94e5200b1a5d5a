#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/support/fresh_state.h"

#include <vector>

namespace {

using VowelMarks = tests::FreshState;
using shell::settings;

std::string markAfter(void (*set)(), platform::Flag shown, const std::string& before)
{
    settings.ShowVowelLength = shown;
    settings.VowelMark = before;
    set();
    return settings.VowelMark;
}

// The option stores true as -1.
TEST_F(VowelMarks, AreSetAndTakenAwayByTheOption)
{
    EXPECT_EQ(markAfter(shell::setVowelMarkForDrill, -1, ":"), ""); // sic: the generators set it
    EXPECT_EQ(markAfter(shell::setVowelMarkForDrill, 1, ""), ":");
    EXPECT_EQ(markAfter(shell::setVowelMarkWhereShown, -1, ""), ":");
    EXPECT_EQ(markAfter(shell::setVowelMarkWhereShown, 0, ":"), ":");
    EXPECT_EQ(markAfter(shell::setVowelMarkWhereShown, 1, ""), "");
    EXPECT_EQ(markAfter(shell::setVowelMarkAsShown, -1, ""), ":");
    EXPECT_EQ(markAfter(shell::setVowelMarkAsShown, 0, ":"), "");
    EXPECT_EQ(markAfter(shell::setVowelMarkAsShown, 1, ":"), ":");
}

TEST_F(VowelMarks, AreStrippedFromStemsUnlessTheyAreShown)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"du:c", "duc"}, {"a::b", "a:b"}, {"a:::b", "a:b"}, {"::", ":"}, {"ama:ve:r:", "amaver"}, {"", ""}};
    for (const auto& [stem, stripped] : cases)
        for (const auto shown : {platform::FlagTrue, platform::FlagFalse, platform::Flag{1}}) {
            settings.ShowVowelLength = shown;
            EXPECT_EQ(shell::stemAsShown(stem), shown == platform::FlagTrue ? stem : stripped) << shown;
        }
}

} // namespace
