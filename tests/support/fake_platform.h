#pragma once

#include "platform/platform.h"

#include <cmath>
#include <functional>
#include <optional>
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
    /// The names under which a file was to be saved, and the one that the learner chooses; empty: none.
    std::vector<std::string> offeredNames;
    std::string chosenName;
    std::vector<std::string> programs;
    bool programsStart = false;
    std::optional<int> exitStatus;

    float secondsSinceMidnight() const override { return static_cast<float>(std::fmod(clock, 86400)); }

    void waitForEvents(std::chrono::milliseconds atMost) override
    {
        ++waits;
        // A copy: what happens may be to set another.
        if (const auto happening = whileWaiting)
            happening();
        clock += static_cast<double>(atMost.count()) / 1000;
    }

    void beep() override { ++beeps; }
    void playSound(const std::string& waveFile) override { sounds.push_back("sound " + waveFile); }
    bool soundIsPlaying() const override { return false; }

    bool startProgram(const std::string& commandLine) override
    {
        programs.push_back(commandLine);
        return programsStart;
    }

    void showMessage(const std::string& text, std::function<void()> dismissed) override
    {
        messages.push_back(text);
        dismissMessage = std::move(dismissed);
    }

    void chooseFileToSave(const std::string& name, const std::vector<std::string>& /*kinds*/,
                          std::function<void(const std::string&)> chosen) override
    {
        offeredNames.push_back(name);
        if (!chosenName.empty())
            chosen(chosenName);
    }

    void endProgram(int status) override { exitStatus = status; }
    bool ending() const override { return exitStatus.has_value(); }
};

} // namespace tests
