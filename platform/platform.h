#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace platform {

/// What the operating system gives the program. There is one at a time, set by `use` before anything else
/// runs.
class Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    /// Seconds since midnight, local time, from 0 to below 86400.
    virtual float secondsSinceMidnight() const = 0;

    /// Sleeps until an event comes or `atMost` is over, then lets the windows work off what is pending.
    virtual void waitForEvents(std::chrono::milliseconds atMost) = 0;

    virtual void beep() = 0;

    /// Plays a wave file of the working folder from its start, on the audio device that is the default at the
    /// moment, and returns at once. A file that cannot be played stays silent.
    virtual void playSound(const std::string& waveFile) = 0;

    /// True while a sound that was started can still be heard.
    virtual bool soundIsPlaying() const = 0;

    /// Starts a program with a command line; false when it cannot be started. How its window stands is left
    /// to it.
    virtual bool startProgram(const std::string& commandLine) = 0;

    /// Shows a message box and returns at once. `dismissed` is called when the box was closed.
    virtual void showMessage(const std::string& text, std::function<void()> dismissed) = 0;
    void showMessage(const std::string& text)
    {
        showMessage(text, [] {});
    }

    /// Asks under which name a file is to be saved, and returns at once. `name` is offered, whose ending a
    /// name without one gets; `kinds` are those of the files that are shown, "PDF (*.pdf)" and so on.
    /// `chosen` is called with the path, once the learner has agreed to replace a file that is there; never
    /// where he gives it up.
    virtual void chooseFileToSave(const std::string& name, const std::vector<std::string>& kinds,
                                  std::function<void(const std::string& path)> chosen) = 0;

    /// Ends the program as soon as the running event is worked off, with this exit status.
    virtual void endProgram(int exitStatus) = 0;

    /// True from `endProgram` on.
    virtual bool ending() const = 0;
};

/// The platform in use. Throws std::logic_error when none was set.
Platform& current();

/// Sets the platform in use; it must outlive every later call of `current`.
void use(Platform& platform);

} // namespace platform
