#include "app/sound/wave_sound.h"

#include <QFile>
#include <QMediaDevices>
#include <QWaveDecoder>

#include <algorithm>

namespace app {

namespace {

constexpr qint64 BufferMicroseconds = 200'000;

// The sink is idle, and may be stopped, as soon as it has read everything; what its buffer still holds is
// then lost. A silence longer than the buffer sees to it that this is nothing but silence.
constexpr qint64 SilenceMicroseconds = 300'000;

QByteArray silence(const QAudioFormat& format)
{
    const char level = format.sampleFormat() == QAudioFormat::UInt8 ? '\x80' : '\0';
    return {format.bytesForDuration(SilenceMicroseconds), level};
}

} // namespace

WaveSound::WaveSound(const QString& path)
{
    QFile file(path);
    QWaveDecoder decoder(&file);
    if (!file.open(QIODevice::ReadOnly) || !decoder.open(QIODevice::ReadOnly))
        return;
    const QAudioFormat format = decoder.audioFormat();
    const QAudioDevice output = QMediaDevices::defaultAudioOutput();
    if (!format.isValid() || output.isNull())
        return;
    // The header may promise more than the file holds.
    samples_.setData(decoder.read(std::min(decoder.size(), file.size())) + silence(format));
    samples_.open(QIODevice::ReadOnly);
    sink_ = std::make_unique<QAudioSink>(output, format);
    sink_->setBufferSize(format.bytesForDuration(BufferMicroseconds));
    connect(sink_.get(), &QAudioSink::stateChanged, this, &WaveSound::stopWhenIdle, Qt::QueuedConnection);
}

WaveSound::~WaveSound() = default;

void WaveSound::play()
{
    if (!sink_)
        return;
    sink_->stop();
    samples_.seek(0);
    sink_->start(&samples_);
}

bool WaveSound::isPlaying() const
{
    return sink_ && sink_->state() != QAudio::StoppedState;
}

// A sink that idles before the end only waits for its turn on a busy machine.
void WaveSound::stopWhenIdle()
{
    if (sink_->state() == QAudio::IdleState && samples_.atEnd())
        sink_->stop();
}

} // namespace app
