#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/support/fresh_state.h"

namespace {

using VowelMarks = tests::FreshState;
using shell::settings;

// The option stores true as -1.
constexpr platform::Flag Options[] = {platform::FlagTrue, platform::FlagFalse, platform::Flag{1}};

TEST_F(VowelMarks, AreSetAndTakenAwayByTheOption)
{
    const std::pair<void (*)(), std::string> options[] = {
        {shell::setVowelMarkForDrill, "||:|"}, // sic: the generators set it
        {shell::setVowelMarkWhereShown, ":|x|x|"},
        {shell::setVowelMarkAsShown, ":||x|"}};
    for (const auto& [set, marks] : options) {
        std::string after;
        for (const auto shown : Options) {
            settings.ShowVowelLength = shown;
            settings.VowelMark = "x";
            set();
            after += settings.VowelMark + '|';
        }
        EXPECT_EQ(after, marks);
    }
}

TEST_F(VowelMarks, AreStrippedFromStemsUnlessTheyAreShown)
{
    for (const auto& [stem, stripped] :
         {std::pair{"du:c", "duc"}, {"a::b", "a:b"}, {"a:::b", "a:b"}, {"::", ":"}, {"ama:ve:r:", "amaver"}})
        for (const auto shown : Options) {
            settings.ShowVowelLength = shown;
            EXPECT_EQ(shell::stemAsShown(stem), shown == platform::FlagTrue ? stem : stripped) << shown;
        }
}

} // namespace
