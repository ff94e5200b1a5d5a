#include "shell/delay.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Delay = tests::FreshState;
using shell::settings;

TEST_F(Delay, RoundsTenthsToSecondsHalvesToEven)
{
    struct Case {
        int scroll;
        int seconds;
    };
    for (const auto& [scroll, seconds] :
         {Case{0, 0}, Case{2, 0}, Case{4, 0}, Case{5, 0}, Case{6, 1}, Case{10, 1}, Case{14, 1}, Case{15, 2},
          Case{16, 2}, Case{25, 2}, Case{26, 3}, Case{35, 4}, Case{45, 4}, Case{995, 100}, Case{1000, 100}}) {
        shell::setDelay(scroll);
        EXPECT_EQ(settings.DelaySeconds, seconds) << scroll;
    }
    EXPECT_EQ(settings.SettingsChangeCount, 15);
}

TEST_F(Delay, DividesByTenEachTimeItIsConfirmedUnmoved)
{
    settings.DelaySeconds = 100;
    for (const int seconds : {10, 1, 0, 0}) {
        shell::setDelay(shell::scrollAtFirst());
        EXPECT_EQ(settings.DelaySeconds, seconds);
    }
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
