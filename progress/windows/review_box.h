#pragma once

#include "shell/kit/answer_box.h"
#include "shell/kit/latin_text.h"

#include <QValidator>

namespace progress {

/// The box of a review, for a form or for a word of a list. In a word "/", "?" and macrons are letters like
/// all others.
class ReviewBox : public shell::AnswerBox {
    Q_OBJECT

public:
    explicit ReviewBox(QWidget* parent) : AnswerBox(parent)
    {
        shell::takeMacrons(*this);
        macrons_ = validator();
    }

    void takeForm() { setValidator(macrons_); }
    void takeWord() { setValidator(nullptr); }

protected:
    bool takesHintKeys() const override { return validator() != nullptr; }

private:
    const QValidator* macrons_;
};

} // namespace progress
