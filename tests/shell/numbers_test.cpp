#include "shell/delay.h"
#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Numbers = tests::FreshState;
using shell::settings;

TEST_F(Numbers, RoundTheTenthsOfTheDelayHalvesToEven)
{
    for (const auto& [scroll, seconds, text] : {std::tuple{2, 0, " 0.2 seconds"},
                                                {5, 0, " 0.5 seconds"},
                                                {10, 1, " 1 seconds"},
                                                {15, 2, " 1.5 seconds"},
                                                {25, 2, " 2.5 seconds"},
                                                {26, 3, " 2.6 seconds"},
                                                {1000, 100, " 100 seconds"}}) {
        shell::setDelay(scroll);
        EXPECT_EQ(settings.DelaySeconds, seconds) << scroll;
        EXPECT_EQ(shell::delayText(scroll), text);
    }
    EXPECT_EQ(settings.SettingsChangeCount, 7);
}

TEST_F(Numbers, RoundTheScoreHalvesToEvenAndLetItStandWhereTheCountsAreFull)
{
    for (const auto& [right, wrong, text] : {std::tuple{0, 1, " 0% "},
                                             {3, 1, " 75% "},
                                             {2, 1, " 67% "},
                                             {1, 7, " 12% "},
                                             {3, 5, " 38% "},
                                             {40000, 1, " 100% "}}) {
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
