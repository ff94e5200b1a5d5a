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
    format_ = decoder.audioFormat();
    if (!format_.isValid())
        return;
    // The header may promise more than the file holds.
    samples_.setData(decoder.read(std::min(decoder.size(), file.size())) + silence(format_));
    samples_.open(QIODevice::ReadOnly);
}

WaveSound::~WaveSound() = default;

void WaveSound::play()
{
    sink_.reset();
    const QAudioDevice output = QMediaDevices::defaultAudioOutput();
    if (!samples_.isOpen() || output.isNull())
        return;
    samples_.seek(0);
    sink_ = std::make_unique<QAudioSink>(output, format_);
    sink_->setBufferSize(format_.bytesForDuration(BufferMicroseconds));
    connect(sink_.get(), &QAudioSink::stateChanged, this, &WaveSound::stopWhenIdle, Qt::QueuedConnection);
    sink_->start(&samples_);
}

bool WaveSound::isPlaying() const
{
    return sink_ && sink_->state() != QAudio::StoppedState;
}

// A sink that idles before the end only waits for its turn on a busy machine. The change of state may be that
// of the sink before.
void WaveSound::stopWhenIdle()
{
    if (sink_ && sink_->state() == QAudio::IdleState && samples_.atEnd())
        sink_->stop();
}

} // namespace app
