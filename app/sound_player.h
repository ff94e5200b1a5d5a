#pragma once

#include <QtPlugin>

#include <string>

namespace app {

/// Plays wave files of the working folder. It comes as a plugin, because the sound system is as large as all
/// the rest: it is loaded when the first file is played, which is never the case with sound off.
class SoundPlayer {
public:
    SoundPlayer() = default;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    virtual ~SoundPlayer() = default;

    /// Plays a file from its start. A file that cannot be played stays silent.
    virtual void play(const std::string& waveFile) = 0;

    virtual bool isPlaying() const = 0;
};

/// The sound player, loaded at the first call from beside the program or from the installed library folder;
/// nullptr where it is not there.
SoundPlayer* soundPlayer();

/// The sound player if it was loaded already, else nullptr.
SoundPlayer* loadedSoundPlayer();

} // namespace app

Q_DECLARE_INTERFACE(app::SoundPlayer, "morvanti.SoundPlayer/1")
