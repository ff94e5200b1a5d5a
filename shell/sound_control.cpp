#include "shell/sound_control.h"

#include "platform/platform.h"
#include "shell/settings.h"

#include <string>

namespace shell {

SoundControl::SoundControl(std::string_view waveFile) : waveFile_(waveFile) {}

void SoundControl::open()
{
    platform::current().openSound(std::string(waveFile_));
    isOpen_ = true;
}

void SoundControl::sound() const
{
    if (isOpen_)
        platform::current().playSound(std::string(waveFile_));
}

void soundIfOn(std::string_view waveFile)
{
    SoundControl control(waveFile);
    if (settings.SoundOn == platform::FlagTrue)
        control.open();
    control.sound();
}

} // namespace shell
