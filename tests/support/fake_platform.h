#pragma once

#include "platform/platform.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tests {

/// A platform whose clock the test sets and that only writes down what it is asked to do.
class FakePlatform : public platform::Platform {
public:
    /// Noon. Waiting moves it on by the whole wait, so that a pause ends at once.
    double clock = 43200;

    /// Called in every wait before the clock moves: what happens while the program pauses.
    std::function<void()> whileWaiting;

    int beeps = 0;
    int waits = 0;

    /// "sound right.wav" and so on.
    std::vector<std::string> sounds;
    std::vector<std::string> messages;
    /// Closes the last message, as the learner does.
    std::function<void()> dismissMessage;
    std::vector<std::string> programs;
    bool programsStart = false;
    std::optional<int> exitStatus;

    float secondsSinceMidnight() const override;
    void waitForEvents(std::chrono::milliseconds atMost) override;
    void beep() override;
    void playSound(const std::string& waveFile) override;
    bool soundIsPlaying() const override;
    bool startProgram(const std::string& commandLine) override;
    void showMessage(const std::string& text, std::function<void()> dismissed) override;
    void endProgram(int status) override;
    bool ending() const override;
};

} // namespace tests
