#pragma once

#include <functional>

namespace shell {

/// Waits so many seconds while the windows stay alive, asleep between their events. Returns earlier when
/// `isOff` says so or the program ends.
///
/// The clock starts again at 0 at midnight, which is meant not to be corrected: a wait that would end after
/// midnight lasts until the time of day at which it began comes round again.
void waitSeconds(double seconds, const std::function<bool()>& isOff);

} // namespace shell
