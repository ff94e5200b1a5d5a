#pragma once

#include "shell/kit/question_window.h"

#include <filesystem>

namespace vocabulary {

/// Asks whether the list may replace a file, and says how many words that holds.
class VcabReplace : public shell::QuestionWindow {
    Q_OBJECT

public:
    VcabReplace();

    void open(const std::filesystem::path& file);

Q_SIGNALS:
    void replacementAllowed();

private:
    QPushButton* cancel_ = nullptr;
};

} // namespace vocabulary
