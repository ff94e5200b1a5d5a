#pragma once

#include <functional>

namespace shell {

/// Waits so many seconds while the windows stay alive, asleep between their events. `seconds` is read again
/// after every event, so that the wait can be changed while it lasts. Returns earlier when `isOff` says so or
/// the program ends.
///
/// The clock starts again at 0 at midnight, which is meant not to be corrected: a wait that would end after
/// midnight lasts until the time of day at which it began comes round again.
void waitSeconds(const std::function<double()>& seconds, const std::function<bool()>& isOff);

} // namespace shell
