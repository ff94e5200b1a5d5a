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
        fake.whileWaiting = [this, happening] {
            fake.whileWaiting = nullptr;
            happening();
        };
    }

    // Lets a pause begin at a time of day and returns how long it lasted, in seconds.
    double lengthFrom(double start)
    {
        fake.clock = start;
        shell::Pause();
        return fake.clock - start;
    }
};

// The clock starts again at 0 there.
TEST_F(Pause, EndsOnlyWhenTheTimeOfDayComesRoundWhereItMeetsMidnight)
{
    EXPECT_NEAR(lengthFrom(43200), 100, 0.02);
    EXPECT_NEAR(lengthFrom(86299), 100, 0.02);
    EXPECT_NEAR(lengthFrom(86399), 86400, 2);
}

TEST_F(Pause, DoesNotPollAfterTheClockWentBack)
{
    once([&] { fake.clock -= 200; });
    shell::Pause();
    EXPECT_LE(fake.waits, 4);
}

TEST_F(Pause, EndsAtOnceWhenTheDrillIsLeftOrTheProgramEnds)
{
    EXPECT_TRUE(shell::pauseWithDrill());
    fake.waits = 0;
    once([] {
        EXPECT_TRUE(shell::pausing());
        shell::leaveDrill();
        EXPECT_FALSE(shell::pausing());
    });
    EXPECT_FALSE(shell::pauseWithDrill());
    EXPECT_FALSE(shell::pausing());
    once([&] { fake.endProgram(0); });
    EXPECT_FALSE(shell::pauseWithDrill());
    EXPECT_EQ(fake.waits, 2);
}

TEST_F(Pause, OfADrillThatWasLeftDoesNotHoldUpTheNextOne)
{
    once([] {
        shell::leaveDrill();
        shell::beginDrill("Conjugation");
        EXPECT_TRUE(shell::pauseWithDrill());
        EXPECT_FALSE(shell::pausing());
    });
    EXPECT_FALSE(shell::pauseWithDrill());
    EXPECT_EQ(fake.waits, 2);
}

} // namespace
