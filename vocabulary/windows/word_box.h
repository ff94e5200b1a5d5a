#pragma once

#include "shell/kit/answer_box.h"

namespace vocabulary {

/// The box for a meaning. "/" and "?" are part of an answer here.
class WordBox : public shell::AnswerBox {
    Q_OBJECT

public:
    using AnswerBox::AnswerBox;

protected:
    void keyPressEvent(QKeyEvent* event) override { QLineEdit::keyPressEvent(event); }
};

} // namespace vocabulary
