#include "shell/delay.h"
#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Numbers = tests::FreshState;
using Cases = std::vector<std::tuple<int, int, std::string>>;

// clang-format off
const Cases Delays = {
    {2, 0, " 0.2"}, {5, 0, " 0.5"}, {15, 2, " 1.5"}, {25, 2, " 2.5"}, {26, 3, " 2.6"}, {1000, 100, " 100"}};

const Cases Scores = {
    {0, 1, " 0% "}, {3, 1, " 75% "}, {2, 1, " 67% "}, {1, 7, " 12% "}, {3, 5, " 38% "}, {40000, 1, " 100% "}};
// clang-format on

TEST_F(Numbers, RoundTheTenthsOfTheDelayHalvesToEven)
{
    for (const auto& [scroll, seconds, text] : Delays) {
        shell::setDelay(scroll);
        EXPECT_EQ(shell::settings.DelaySeconds, seconds) << scroll;
        EXPECT_EQ(shell::delayText(scroll), text + " seconds");
    }
}

TEST_F(Numbers, RoundTheScoreHalvesToEvenAndLetItStandWhereTheCountsAreFull)
{
    for (const auto& [right, wrong, text] : Scores) {
        shell::resetScore();
        for (int i = 0; i < right; ++i)
            shell::scoreRightAnswer();
        for (int i = 0; i < wrong; ++i)
            shell::scoreWrongAnswer();
        EXPECT_EQ(shell::scoreText(), text);
    }
    EXPECT_EQ(shell::settings.AnsweredCount, 32767);
}

} // namespace
