#pragma once

#include "shell/kit/question_window.h"
#include "vocabulary/vocabulary_file.h"

#include <filesystem>

namespace vocabulary {

/// Asks whether a file with more words than a list holds may be divided into several lists, and divides it.
class VcabDivide : public shell::QuestionWindow {
    Q_OBJECT

public:
    VcabDivide();

    /// The fault says how many words the file holds.
    void open(const std::filesystem::path& file, const LoadFault& fault);

Q_SIGNALS:
    /// The file was divided; this is the first of its lists.
    void divided(const std::filesystem::path& list);

private:
    void divide();

    std::filesystem::path file_;
    QPushButton* divide_ = nullptr;
};

} // namespace vocabulary
