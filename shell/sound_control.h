#pragma once

#include <string_view>

namespace shell {

/// A window's media control: the wave-audio device with one file of the working folder.
class SoundControl {
public:
    explicit SoundControl(std::string_view waveFile);

    /// Opens the device. It is opened only when sound is on.
    void open();

    /// Plays the file; nothing is heard while the device is not open.
    void sound() const;

private:
    std::string_view waveFile_;
    bool isOpen_ = false;
};

/// Plays a file through a control of its own when `SoundOn` is true; else opens nothing.
void soundIfOn(std::string_view waveFile);

} // namespace shell
