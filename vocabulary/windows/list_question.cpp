#include "vocabulary/windows/list_question.h"

#include "shell/kit/controls.h"
#include "shell/kit/layout.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vocabulary {

ListQuestion::ListQuestion(std::string_view name, QAnyStringView text)
    : Window(name), text_(shell::makeLabel(this, text)), answers_(shell::buttonRow({}, {}))
{
    constexpr QMargins margins{shell::WideSpace, shell::WideSpace, shell::WideSpace, shell::LargeSpace};
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    text_->setWordWrap(true);
    shell::setContent(this, margins, shell::columnOf(shell::WideSpace, {text_, answers_}));
    closeOnEscape();
}

QPushButton* ListQuestion::addAnswer(QAnyStringView name)
{
    QPushButton* const answer = shell::makeButton(this, name);
    answers_->addWidget(answer);
    return answer;
}

void ListQuestion::askWith(QPushButton& answer)
{
    adjustSize();
    showInFront();
    answer.setFocus();
}

} // namespace vocabulary
