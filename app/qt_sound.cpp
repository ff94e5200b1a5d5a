#include "app/qt_sound.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include <algorithm>

namespace app {

QtSound::QtSound() = default;
QtSound::~QtSound() = default;

void QtSound::open(const std::string& waveFile)
{
    const QFileInfo file(QString::fromStdString(waveFile));
    if (effects_.contains(waveFile) || !file.isFile())
        return;
    auto effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    effects_.emplace(waveFile, std::move(effect));
}

void QtSound::play(const std::string& waveFile)
{
    if (const auto effect = effects_.find(waveFile); effect != effects_.end())
        effect->second->play();
}

bool QtSound::isPlaying() const
{
    return std::ranges::any_of(effects_, [](const auto& effect) { return effect.second->isPlaying(); });
}

} // namespace app
