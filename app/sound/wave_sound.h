#pragma once

#include <QAudioSink>
#include <QBuffer>
#include <QByteArray>
#include <QObject>

#include <memory>

namespace app {

/// One wave file, read whole. A file that is no uncompressed wave stays silent, and so does every file as
/// long as there is no output.
class WaveSound : public QObject {
    Q_OBJECT

public:
    explicit WaveSound(const QString& path);
    ~WaveSound() override;

    /// Plays from the start, also while it is playing, on the output that is the default one now.
    void play();

    /// True from `play` until the last sample was heard.
    bool isPlaying() const;

private:
    void stopWhenIdle();

    QAudioFormat format_;
    QBuffer samples_;
    std::unique_ptr<QAudioSink> sink_;
};

} // namespace app
