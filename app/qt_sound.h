#pragma once

#include <map>
#include <memory>
#include <string>

class QSoundEffect;

namespace app {

/// The wave files that were opened. Nothing of the sound system is touched before the first is.
class QtSound {
public:
    QtSound();
    QtSound(const QtSound&) = delete;
    QtSound& operator=(const QtSound&) = delete;
    ~QtSound();

    void open(const std::string& waveFile);
    void play(const std::string& waveFile);
    bool isPlaying() const;

private:
    std::map<std::string, std::unique_ptr<QSoundEffect>> effects_;
};

} // namespace app
