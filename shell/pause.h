#pragma once

namespace shell {

/// Waits `DelaySeconds` seconds while the windows stay alive. Returns earlier when the drill that pauses is
/// left or the program ends. At midnight it does as `waitSeconds` says.
void Pause();

/// True while the running drill pauses. Checking and hinting do nothing then.
bool pausing();

} // namespace shell
