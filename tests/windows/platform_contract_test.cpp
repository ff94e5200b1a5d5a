#include "app/qt_platform.h"
#include "tests/support/window_test.h"

namespace {

using namespace std::chrono_literals;
using Action = std::function<void()>;

// A platform, how something happens while it waits, and how a program runs on it: to its exit status.
struct Fake {
    tests::FakePlatform platform;

    void duringWait(const Action& action) { platform.whileWaiting = action; }
    int run(const Action& program)
    {
        program();
        return platform.exitStatus.value_or(-1);
    }
};

struct Real {
    app::QtPlatform platform;

    void duringWait(const Action& action) { QTimer::singleShot(0, action); }
    int run(const Action& program)
    {
        QTimer::singleShot(0, program);
        return QApplication::exec();
    }
};

template <typename Machine>
class PlatformContract : public testing::Test {
protected:
    PlatformContract() { QApplication::processEvents(); }

    Machine machine;
    platform::Platform& platform = machine.platform;
};

using Machines = testing::Types<Fake, Real>;
TYPED_TEST_SUITE(PlatformContract, Machines);

// What the windows of other tests still have to hear may end a wait or two.
TYPED_TEST(PlatformContract, AWaitWithoutEventsEndsWithItsTime)
{
    float waited = 0;
    for (int lateEvents = 0; waited >= 0 && waited < 0.19F && lateEvents < 50; ++lateEvents) {
        const float before = this->platform.secondsSinceMidnight();
        this->platform.waitForEvents(200ms);
        waited = this->platform.secondsSinceMidnight() - before;
    }
    EXPECT_TRUE(waited < 0 || (waited > 0.19F && waited < 10)) << waited; // below 0 at midnight
}

TYPED_TEST(PlatformContract, TheMomentHasTheTimeOfTheClock)
{
    const auto seconds = static_cast<std::int64_t>(this->platform.secondsSinceMidnight());
    const auto later = (platform::localSeconds(this->platform.now()) - seconds) % 86400;
    EXPECT_TRUE(later >= 0 && later < 10) << later;
    EXPECT_GT(platform::localDay(this->platform.now()), 19999);
}

TYPED_TEST(PlatformContract, AWaitEndsWithAnEventWorkedOffAndWithTheProgram)
{
    QElapsedTimer watch;
    watch.start();
    const int status = this->machine.run([this] {
        bool happened = false;
        this->machine.duringWait([&] { happened = true; });
        this->platform.waitForEvents(20s);
        EXPECT_TRUE(happened);
        EXPECT_FALSE(this->platform.ending());
        this->machine.duringWait([this] { this->platform.endProgram(3); });
        this->platform.waitForEvents(20s);
        EXPECT_TRUE(this->platform.ending());
    });
    EXPECT_EQ(status, 3);
    EXPECT_LT(watch.elapsed(), 10000);
}

} // namespace
