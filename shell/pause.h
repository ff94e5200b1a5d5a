#pragma once

namespace shell {

/// Waits `DelaySeconds` seconds while the windows stay alive. Returns earlier when the drill that pauses is
/// left or the program ends.
///
/// The clock starts again at 0 at midnight, which is meant not to be corrected: a pause that would end after
/// midnight lasts until the time of day at which it began comes round again.
void Pause();

/// True while the running drill pauses. Checking and hinting do nothing then.
bool pausing();

} // namespace shell
