#include "tests/support/fake_platform.h"

#include <cmath>
#include <utility>

namespace tests {

namespace {
constexpr double SecondsOfDay = 86400;
}

float FakePlatform::secondsSinceMidnight() const
{
    return static_cast<float>(std::fmod(clock, SecondsOfDay));
}

void FakePlatform::waitForEvents(std::chrono::milliseconds atMost)
{
    ++waits;
    // A copy: what happens may be to set another.
    if (const auto happening = whileWaiting)
        happening();
    clock += static_cast<double>(atMost.count()) / 1000;
}

void FakePlatform::beep()
{
    ++beeps;
}

void FakePlatform::playSound(const std::string& waveFile)
{
    sounds.push_back("sound " + waveFile);
}

bool FakePlatform::soundIsPlaying() const
{
    return false;
}

bool FakePlatform::startProgram(const std::string& commandLine)
{
    programs.push_back(commandLine);
    return programsStart;
}

void FakePlatform::showMessage(const std::string& text, std::function<void()> dismissed)
{
    messages.push_back(text);
    dismissMessage = std::move(dismissed);
}

void FakePlatform::endProgram(int status)
{
    exitStatus = status;
}

bool FakePlatform::ending() const
{
    return exitStatus.has_value();
}

} // namespace tests
