#include "app/sound/qt_sound_player.h"

#include "app/sound/wave_sound.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace app {

// Sounds must go while the sound system still stands: the plugin itself goes only after it.
QtSoundPlayer::QtSoundPlayer()
{
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { sounds_.clear(); });
}

QtSoundPlayer::~QtSoundPlayer() = default;

void QtSoundPlayer::play(const std::string& waveFile)
{
    auto sound = sounds_.find(waveFile);
    if (sound == sounds_.end()) {
        const QString path = QString::fromStdString(waveFile);
        if (!QFileInfo(path).isFile())
            return;
        sound = sounds_.emplace(waveFile, std::make_unique<WaveSound>(path)).first;
    }
    sound->second->play();
}

bool QtSoundPlayer::isPlaying() const
{
    return std::ranges::any_of(sounds_, [](const auto& sound) { return sound.second->isPlaying(); });
}

} // namespace app
