#include "shell/pause.h"

#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/settings.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace shell {

namespace {

constexpr double SecondsOfDay = 86400;

// The session of the pause that waits, and how many of that session wait (one within the other).
struct Waiting {
    int session = 0;
    int depth = 0;
};
Waiting waiting;

// Counts a pause as long as it waits.
class Wait {
public:
    Wait() : before_(waiting), session_(drillSession())
    {
        waiting = {session_, before_.session == session_ ? before_.depth + 1 : 1};
    }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
    ~Wait() { waiting = before_; }

    bool isOff() const { return session_ != drillSession() || platform::current().ending(); }

private:
    Waiting before_;
    int session_;
};

// Never past midnight, where the clock starts again.
std::chrono::milliseconds untilReached(double time, double now)
{
    const double left = (std::min(time, SecondsOfDay) - now) * 1000;
    return std::chrono::milliseconds(std::max(1L, std::lround(std::ceil(left))));
}

} // namespace

void Pause()
{
    const Wait wait;
    platform::Platform& platform = platform::current();
    const double start = double{platform.secondsSinceMidnight()};
    bool pastMidnight = false;
    while (!wait.isOff()) {
        const double now = double{platform.secondsSinceMidnight()};
        const double end = start + settings.DelaySeconds;
        pastMidnight = pastMidnight || now < start;
        const bool sameTimeAgain = pastMidnight && end >= SecondsOfDay && now >= start;
        if (now >= end || sameTimeAgain)
            return;
        platform.waitForEvents(untilReached(pastMidnight ? std::min(start, end) : end, now));
    }
}

bool pausing()
{
    return waiting.depth > 0 && waiting.session == drillSession();
}

} // namespace shell
