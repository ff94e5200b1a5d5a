#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/support/fresh_state.h"

namespace {

using VowelMarks = tests::FreshState;
using shell::settings;

// The option stores true as -1.
TEST_F(VowelMarks, AreSetAndTakenAwayByTheOption)
{
    const auto marks = [](void (*set)()) {
        std::string after;
        for (const auto shown : {platform::FlagTrue, platform::FlagFalse, platform::Flag{1}}) {
            settings.ShowVowelLength = shown;
            settings.VowelMark = "x";
            set();
            after += '[' + settings.VowelMark + ']';
        }
        return after;
    };
    EXPECT_EQ(marks(shell::setVowelMarkForDrill), "[][][:]"); // sic: the generators set it
    EXPECT_EQ(marks(shell::setVowelMarkWhereShown), "[:][x][x]");
    EXPECT_EQ(marks(shell::setVowelMarkAsShown), "[:][][x]");
}

TEST_F(VowelMarks, AreStrippedFromStemsUnlessTheyAreShown)
{
    for (const auto& [stem, stripped] :
         {std::pair{"du:c", "duc"}, {"a::b", "a:b"}, {"a:::b", "a:b"}, {"::", ":"}, {"ama:ve:r:", "amaver"}})
        for (const auto shown : {platform::FlagTrue, platform::FlagFalse, platform::Flag{1}}) {
            settings.ShowVowelLength = shown;
            EXPECT_EQ(shell::stemAsShown(stem), shown == platform::FlagTrue ? stem : stripped) << shown;
        }
}

} // namespace
