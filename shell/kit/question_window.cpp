#include "shell/kit/question_window.h"

#include "shell/kit/controls.h"
#include "shell/kit/layout.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace shell {

QuestionWindow::QuestionWindow(std::string_view name, QAnyStringView text)
    : Window(name), text_(makeLabel(this, text)), answers_(buttonRow({}, {}))
{
    constexpr QMargins margins{WideSpace, WideSpace, WideSpace, LargeSpace};
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    text_->setWordWrap(true);
    setContent(this, margins, columnOf(WideSpace, {text_, answers_}));
    closeOnEscape();
}

QPushButton* QuestionWindow::addAnswer(QAnyStringView name)
{
    QPushButton* const answer = makeButton(this, name);
    answers_->addWidget(answer);
    return answer;
}

void QuestionWindow::askWith(QPushButton& answer)
{
    fitContent();
    showInFront();
    answer.setFocus();
}

} // namespace shell
