#include "shell/drill.h"
#include "shell/pause.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

constexpr double SecondsOfDay = 86400;

class Pause : public tests::FreshState {
protected:
    // Lets a pause begin at a time of day and returns how long it lasted, in seconds.
    double lengthFrom(double start)
    {
        fake.clock = start;
        shell::Pause();
        return fake.clock - start;
    }
};

TEST_F(Pause, LastsAsManySecondsAsAreSet)
{
    for (const int seconds : {1, 2, 100}) {
        shell::settings.DelaySeconds = seconds;
        EXPECT_NEAR(lengthFrom(43200), seconds, 0.02);
    }
    shell::settings.DelaySeconds = 0;
    EXPECT_EQ(lengthFrom(43200), 0);
}

TEST_F(Pause, EndsOnlyWhenTheTimeOfDayComesRoundWhereItMeetsMidnight)
{
    shell::settings.DelaySeconds = 2;
    EXPECT_NEAR(lengthFrom(86399), SecondsOfDay, 2);
    EXPECT_NEAR(lengthFrom(86397), 2, 0.02);
}

TEST_F(Pause, GoesByTheDelayThatIsSetWhileItLasts)
{
    fake.whileWaiting = [&] {
        shell::settings.DelaySeconds = 0;
        fake.clock -= 99;
    };
    shell::settings.DelaySeconds = 100;
    shell::Pause();
    EXPECT_EQ(fake.waits, 1);
}

TEST_F(Pause, DoesNotPollAfterTheClockWentBack)
{
    bool first = true;
    fake.whileWaiting = [&] {
        if (first)
            fake.clock -= 200;
        first = false;
    };
    shell::settings.DelaySeconds = 100;
    shell::Pause();
    EXPECT_LE(fake.waits, 4);
}

TEST_F(Pause, EndsAtOnceWhenTheDrillIsLeft)
{
    fake.whileWaiting = [&] {
        EXPECT_TRUE(shell::pausing());
        shell::leaveDrill();
        EXPECT_FALSE(shell::pausing());
    };
    shell::settings.DelaySeconds = 100;
    shell::Pause();
    EXPECT_EQ(fake.waits, 1);
    EXPECT_FALSE(shell::pausing());
}

TEST_F(Pause, EndsWhenTheProgramEnds)
{
    fake.whileWaiting = [&] { fake.endProgram(0); };
    shell::settings.DelaySeconds = 100;
    shell::Pause();
    EXPECT_EQ(fake.waits, 1);
}

TEST_F(Pause, OfADrillThatWasLeftDoesNotHoldUpTheNextOne)
{
    bool first = true;
    fake.whileWaiting = [&] {
        if (!first)
            return;
        first = false;
        shell::leaveDrill();
        shell::beginDrill("Conjugation");
        shell::Pause();
        EXPECT_FALSE(shell::pausing());
    };
    shell::Pause();
    EXPECT_EQ(fake.waits, 2);
}

} // namespace
