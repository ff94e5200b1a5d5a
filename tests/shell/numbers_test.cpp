#include "shell/delay.h"
#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <vector>

namespace {

using Numbers = tests::FreshState;
using shell::settings;

TEST_F(Numbers, RoundTheTenthsOfTheDelayHalvesToEven)
{
    // clang-format off
    const std::vector<std::tuple<int, int, std::string>> cases = {
        {2, 0, " 0.2"}, {5, 0, " 0.5"}, {10, 1, " 1"}, {15, 2, " 1.5"},
        {25, 2, " 2.5"}, {26, 3, " 2.6"}, {1000, 100, " 100"}};
    // clang-format on
    for (const auto& [scroll, seconds, text] : cases) {
        shell::setDelay(scroll);
        EXPECT_EQ(settings.DelaySeconds, seconds) << scroll;
        EXPECT_EQ(shell::delayText(scroll), text + " seconds");
    }
    EXPECT_EQ(settings.SettingsChangeCount, 7);
}

TEST_F(Numbers, RoundTheScoreHalvesToEvenAndLetItStandWhereTheCountsAreFull)
{
    // clang-format off
    const std::vector<std::tuple<int, int, std::string>> cases = {
        {0, 1, " 0% "}, {3, 1, " 75% "}, {2, 1, " 67% "}, {1, 7, " 12% "}, {3, 5, " 38% "}, {40000, 1, " 100% "}};
    // clang-format on
    for (const auto& [right, wrong, text] : cases) {
        shell::resetScore();
        for (int i = 0; i < right; ++i)
            shell::scoreRightAnswer();
        for (int i = 0; i < wrong; ++i)
            shell::scoreWrongAnswer();
        EXPECT_EQ(shell::scoreText(), text);
    }
    EXPECT_EQ(settings.AnsweredCount, 32767);
}

} // namespace
