#include "shell/kit/answer_box.h"

#include "shell/kit/type.h"

#include <QApplication>
#include <QKeyEvent>

namespace shell {

namespace {

constexpr QColor Grey{0x80, 0x80, 0x80};
constexpr QColor LightGrey{0xC0, 0xC0, 0xC0};
constexpr QColor Red{0xFF, 0x00, 0x00};
constexpr QColor Blue{0x00, 0x00, 0xFF};
constexpr QColor Black{0x00, 0x00, 0x00};
constexpr QColor White{0xFF, 0xFF, 0xFF};

} // namespace

bool asksForHint(const QString& typed)
{
    return typed == QLatin1String("/") || typed == QLatin1String("?");
}

AnswerBox::AnswerBox(QWidget* parent) : QLineEdit(parent)
{
    setType(*this, FormType);
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (keepsItsLook_)
            lookIdle();
    });
}

void AnswerBox::lookIdle()
{
    keepsItsLook_ = false;
    QPalette colours = QApplication::palette(this);
    colours.setColor(QPalette::Disabled, QPalette::Base, colours.color(QPalette::Disabled, QPalette::Window));
    setPalette(colours);
}

void AnswerBox::lookAnswered()
{
    setColours(Grey, LightGrey);
    keepsItsLook_ = true;
}

void AnswerBox::lookGrey()
{
    setColours(Grey, White);
    keepsItsLook_ = true;
}

void AnswerBox::lookRevealed()
{
    setColours(White, Red);
}

void AnswerBox::lookBlue()
{
    setColours(White, Blue);
}

void AnswerBox::lookBlack()
{
    setColours(White, Black);
}

void AnswerBox::setAsked(bool asked)
{
    setReadOnly(!asked);
    setFocusPolicy(asked ? Qt::StrongFocus : Qt::ClickFocus);
}

void AnswerBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT focusReceived();
}

void AnswerBox::keyPressEvent(QKeyEvent* event)
{
    if (takesHintKeys() && asksForHint(event->text()))
        Q_EMIT hintRequested();
    else
        QLineEdit::keyPressEvent(event);
}

void AnswerBox::setColours(const QColor& background, const QColor& text)
{
    keepsItsLook_ = false;
    QPalette colours = QApplication::palette(this);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(group, QPalette::Base, background);
        colours.setColor(group, QPalette::Text, text);
    }
    setPalette(colours);
}

} // namespace shell
