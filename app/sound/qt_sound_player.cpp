#include "app/sound/qt_sound_player.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include <algorithm>

namespace app {

// Sounds must go while the sound system still stands: the plugin itself goes only after it.
QtSoundPlayer::QtSoundPlayer()
{
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { effects_.clear(); });
}

QtSoundPlayer::~QtSoundPlayer() = default;

void QtSoundPlayer::open(const std::string& waveFile)
{
    const QFileInfo file(QString::fromStdString(waveFile));
    if (effects_.contains(waveFile) || !file.isFile())
        return;
    auto effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    effects_.emplace(waveFile, std::move(effect));
}

void QtSoundPlayer::play(const std::string& waveFile)
{
    if (const auto effect = effects_.find(waveFile); effect != effects_.end())
        effect->second->play();
}

bool QtSoundPlayer::isPlaying() const
{
    return std::ranges::any_of(effects_, [](const auto& effect) { return effect.second->isPlaying(); });
}

} // namespace app
