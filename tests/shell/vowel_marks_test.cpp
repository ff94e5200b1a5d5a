#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/support/fresh_state.h"

#include <vector>

namespace {

using VowelMarks = tests::FreshState;
using shell::settings;

TEST_F(VowelMarks, AreSetAndTakenAwayByTheOption)
{
    struct Case {
        platform::Flag shown; // true is -1; no menu stores 1
        std::string before, forDrill, whereShown, asShown;
    };
    for (const Case& each :
         {Case{-1, "", "", ":", ":"}, Case{0, ":", "", ":", ""}, Case{1, "", ":", "", ""}}) {
        settings.ShowVowelLength = each.shown;
        for (const auto& [set, after] : {std::pair{&shell::setVowelMarkForDrill, each.forDrill},
                                         {&shell::setVowelMarkWhereShown, each.whereShown},
                                         {&shell::setVowelMarkAsShown, each.asShown}}) {
            settings.VowelMark = each.before;
            set();
            EXPECT_EQ(settings.VowelMark, after) << each.shown;
        }
    }
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
