#include "shell/drill.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

class Pause : public tests::FreshState {
protected:
    Pause() { shell::settings.DelaySeconds = 100; }

    // Something that happens in the first wait alone.
    void once(const std::function<void()>& happening)
    {
        fake.waits = 0;
        fake.whileWaiting = [this, happening] {
            fake.whileWaiting = nullptr;
            happening();
        };
    }
};

// The clock starts again at 0 at midnight: a pause that begins just before it lasts a day.
TEST_F(Pause, EndsOnlyWhenTheTimeOfDayComesRoundWhereItMeetsMidnight)
{
    for (const auto& [start, seconds] : {std::pair{43200, 100}, {86299, 100}, {86399, 86400}}) {
        fake.clock = start;
        shell::Pause();
        EXPECT_NEAR(fake.clock - start, seconds, seconds == 100 ? 0.02 : 2);
    }
    once([&] { fake.clock -= 200; });
    shell::Pause();
    EXPECT_LE(fake.waits, 4); // no poll after the clock went back
}

TEST_F(Pause, EndsAtOnceWhenTheProgramEndsOrTheDrillIsLeftAndDoesNotHoldUpTheNextOne)
{
    once([] {
        EXPECT_TRUE(shell::pausing());
        shell::leaveDrill();
        EXPECT_FALSE(shell::pausing());
        shell::beginDrill("Conjugation");
        EXPECT_TRUE(shell::pauseWithDrill());
        EXPECT_FALSE(shell::pausing());
    });
    EXPECT_FALSE(shell::pauseWithDrill());
    EXPECT_EQ(fake.waits, 2);
    once([&] { fake.endProgram(0); });
    EXPECT_FALSE(shell::pauseWithDrill());
    EXPECT_EQ(fake.waits, 1);
}

} // namespace
