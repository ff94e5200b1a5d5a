#include "shell/delay.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Delay = tests::FreshState;
using shell::settings;

TEST_F(Delay, RoundsTenthsToSecondsHalvesToEven)
{
    for (const auto& [scroll, seconds] : {std::pair{0, 0},
                                          {2, 0},
                                          {5, 0},
                                          {6, 1},
                                          {14, 1},
                                          {15, 2},
                                          {16, 2},
                                          {25, 2},
                                          {26, 3},
                                          {35, 4},
                                          {1000, 100}}) {
        shell::setDelay(scroll);
        EXPECT_EQ(settings.DelaySeconds, seconds) << scroll;
    }
    EXPECT_EQ(settings.SettingsChangeCount, 11);
}

TEST_F(Delay, IsPrintedInTenthsWithABlankInPlaceOfTheSign)
{
    EXPECT_EQ(shell::delayText(2), " 0.2 seconds");
    EXPECT_EQ(shell::delayText(0), " 0 seconds");
    EXPECT_EQ(shell::delayText(10), " 1 seconds");
    EXPECT_EQ(shell::delayText(125), " 12.5 seconds");
    EXPECT_EQ(shell::delayText(1000), " 100 seconds");
}

} // namespace
