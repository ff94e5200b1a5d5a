#pragma once

namespace shell {

/// Waits `DelaySeconds` seconds while the windows stay alive. Returns earlier when the drill that pauses is
/// left or the program ends. At midnight it does as `waitSeconds` says.
void Pause();

/// Pauses within a drill. Returns false where that was left meanwhile, or the program ends: then nothing more
/// may be done for it.
[[nodiscard]] bool pauseWithDrill();

/// True while the running drill pauses. Checking and hinting do nothing then.
bool pausing();

} // namespace shell
