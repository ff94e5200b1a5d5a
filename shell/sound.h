#pragma once

#include <string_view>

namespace shell {

/// Plays a wave file of the working folder when `SoundOn` is true.
void soundIfOn(std::string_view waveFile);

} // namespace shell
