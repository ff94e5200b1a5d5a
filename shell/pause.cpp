#include "shell/pause.h"

#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/settings.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace shell {

namespace {

constexpr double SecondsOfDay = 86400;

// Never past midnight, where the clock starts again.
std::chrono::milliseconds untilReached(double time, double now)
{
    const double left = (std::min(time, SecondsOfDay) - now) * 1000;
    return std::chrono::milliseconds(std::max(1L, std::lround(std::ceil(left))));
}

// The drill of the innermost pause.
Stay waiting;

// Makes the running drill the one that waits; at its end the drill of the pause around it is that again.
class Wait {
public:
    Wait() : around_(std::exchange(waiting, drillStay())) {}
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
    ~Wait() { waiting = around_; }

private:
    Stay around_;
};

} // namespace

void waitSeconds(const std::function<double()>& seconds, const std::function<bool()>& isOff)
{
    platform::Platform& platform = platform::current();
    const double start = double{platform.secondsSinceMidnight()};
    bool pastMidnight = false;
    while (!platform.ending() && !isOff()) {
        const double now = double{platform.secondsSinceMidnight()};
        const double end = start + seconds();
        pastMidnight = pastMidnight || now < start;
        const bool startComesAgain = pastMidnight && end >= SecondsOfDay; // sic
        if (now >= end || (startComesAgain && now >= start))
            return;
        platform.waitForEvents(untilReached(startComesAgain ? start : end, now));
    }
}

void Pause()
{
    const Wait wait;
    waitSeconds([] { return settings.DelaySeconds; }, [stay = drillStay()] { return !stay.lasts(); });
}

bool pauseWithDrill()
{
    const Stay stay = drillStay();
    Pause();
    return stay.lasts() && !platform::current().ending();
}

bool pausing()
{
    return waiting.lasts();
}

} // namespace shell
