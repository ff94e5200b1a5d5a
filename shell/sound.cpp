#include "shell/sound.h"

#include "platform/platform.h"
#include "shell/settings.h"

#include <string>

namespace shell {

void soundIfOn(std::string_view waveFile)
{
    if (settings.SoundOn == platform::FlagTrue)
        platform::current().playSound(std::string(waveFile));
}

} // namespace shell
