#pragma once

#include "platform/platform.h"

namespace app {

/// The platform as Qt gives it. Needs a running QApplication.
class QtPlatform : public platform::Platform {
public:
    float secondsSinceMidnight() const override;
    void waitForEvents(std::chrono::milliseconds atMost) override;
    void beep() override;
    void playSound(const std::string& waveFile) override;
    bool soundIsPlaying() const override;
    bool startProgram(const std::string& commandLine) override;
    void showMessage(const std::string& text, std::function<void()> dismissed) override;
    void chooseFileToSave(const std::string& name, const std::vector<std::string>& kinds,
                          std::function<void(const std::string& path)> chosen) override;
    void endProgram(int exitStatus) override;
    bool ending() const override;

private:
    bool ending_ = false;
};

} // namespace app
