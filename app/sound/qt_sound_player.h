#pragma once

#include "app/sound_player.h"

#include <QObject>

#include <map>
#include <memory>

namespace app {

class WaveSound;

/// The sound player as Qt Multimedia gives it.
class QtSoundPlayer : public QObject, public SoundPlayer {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "morvanti.SoundPlayer/1")
    Q_INTERFACES(app::SoundPlayer)

public:
    QtSoundPlayer();
    ~QtSoundPlayer() override;

    void play(const std::string& waveFile) override;
    bool isPlaying() const override;

private:
    std::map<std::string, std::unique_ptr<WaveSound>> sounds_;
};

} // namespace app
