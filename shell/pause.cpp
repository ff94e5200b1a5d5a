#include "shell/pause.h"

#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/settings.h"
#include "shell/wait.h"

namespace shell {

namespace {

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

    bool isOff() const { return session_ != drillSession(); }

private:
    Waiting before_;
    int session_;
};

} // namespace

void Pause()
{
    const Wait wait;
    waitSeconds([] { return settings.DelaySeconds; }, [&wait] { return wait.isOff(); });
}

bool pauseWithDrill()
{
    const int session = drillSession();
    Pause();
    return session == drillSession() && !platform::current().ending();
}

bool pausing()
{
    return waiting.depth > 0 && waiting.session == drillSession();
}

} // namespace shell
