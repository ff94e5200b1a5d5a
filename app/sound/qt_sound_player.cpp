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

void QtSoundPlayer::open(const std::string& waveFile)
{
    const QFileInfo file(QString::fromStdString(waveFile));
    if (sounds_.contains(waveFile) || !file.isFile())
        return;
    sounds_.emplace(waveFile, std::make_unique<WaveSound>(file.absoluteFilePath()));
}

void QtSoundPlayer::play(const std::string& waveFile)
{
    if (const auto sound = sounds_.find(waveFile); sound != sounds_.end())
        sound->second->play();
}

bool QtSoundPlayer::isPlaying() const
{
    return std::ranges::any_of(sounds_, [](const auto& sound) { return sound.second->isPlaying(); });
}

} // namespace app
