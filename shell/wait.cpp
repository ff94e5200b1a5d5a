#include "shell/wait.h"

#include "platform/platform.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace shell {

namespace {

constexpr double SecondsOfDay = 86400;

// Never past midnight, where the clock starts again.
std::chrono::milliseconds untilReached(double time, double now)
{
    const double left = (std::min(time, SecondsOfDay) - now) * 1000;
    return std::chrono::milliseconds(std::max(1L, std::lround(std::ceil(left))));
}

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
        const bool startComesAgain = pastMidnight && end >= SecondsOfDay;
        if (now >= end || (startComesAgain && now >= start))
            return;
        platform.waitForEvents(untilReached(startComesAgain ? start : end, now));
    }
}

} // namespace shell
