#pragma once

#include "shell/kit/window.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace shell {

/// A question that holds the other windows until it is answered: a text, and a row of buttons below it.
class QuestionWindow : public Window {
    Q_OBJECT

protected:
    QuestionWindow(std::string_view name, QAnyStringView text);

    /// Adds a button at the right end of the row.
    QPushButton* addAnswer(QAnyStringView name);

    QLabel& text() { return *text_; }

    /// Shows the window; Enter gives this answer.
    void askWith(QPushButton& answer);

private:
    QLabel* text_;
    QBoxLayout* answers_;
};

} // namespace shell
