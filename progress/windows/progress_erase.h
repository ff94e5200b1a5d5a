#pragma once

#include "shell/kit/question_window.h"

namespace progress {

/// Asks whether all answers that were kept may be deleted.
class ProgressErase : public shell::QuestionWindow {
    Q_OBJECT

public:
    ProgressErase();

    void open();

Q_SIGNALS:
    void erasureAllowed();

private:
    QPushButton* cancel_ = nullptr;
};

} // namespace progress
