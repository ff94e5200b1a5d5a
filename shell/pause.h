#pragma once

#include <functional>

namespace shell {

/// Waits so many seconds while the windows stay alive, asleep between their events. `seconds` is read again
/// after every event, so that the wait can be changed while it lasts. Returns earlier when `isOff` says so or
/// the program ends.
///
/// The clock starts again at 0 at midnight: a wait that would end after midnight lasts until the time of day
/// at which it began comes round again.
void waitSeconds(const std::function<double()>& seconds, const std::function<bool()>& isOff);

/// Waits `DelaySeconds` seconds, likewise. Returns earlier when the drill that pauses is left, or its pause
/// ended.
void Pause();

/// Pauses within a drill. Returns false where that was left meanwhile, its pause ended, or the program ends:
/// then nothing more may be done for the answer that was judged.
[[nodiscard]] bool pauseWithDrill();

/// True while the running drill pauses. Checking and hinting do nothing then.
bool pausing();

} // namespace shell
