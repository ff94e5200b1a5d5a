#include "shell/kit/typed_ahead.h"

#include "shell/kit/answer_box.h"
#include "shell/kit/controls.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace shell {

namespace {

constexpr QChar LineEnd = u'\n';

bool isLetter(const QKeyEvent& key)
{
    constexpr Qt::KeyboardModifiers command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(key.modifiers() & command) && !key.text().isEmpty() && key.text().front().isPrint();
}

bool wouldPressButton(const QKeyEvent& key)
{
    return (isEnter(key) || key.key() == Qt::Key_Space) &&
           qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr;
}

} // namespace

TypedAhead::TypedAhead(const QWidget& window, QString& keys) : window_(window), keys_(keys)
{
    qApp->installEventFilter(this);
}

bool TypedAhead::somethingIsTyped() const
{
    return !keys_.isEmpty() && keys_.back() != LineEnd;
}

bool TypedAhead::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !receiver->isWidgetType() ||
        static_cast<QWidget*>(receiver)->window() != &window_ || qobject_cast<QMenuBar*>(receiver) != nullptr)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (wouldPressButton(key) && !somethingIsTyped())
        return false;
    if (isEnter(key)) {
        if (somethingIsTyped() && !key.isAutoRepeat())
            keys_ += LineEnd;
        return true;
    }
    if (key.key() == Qt::Key_Backspace && somethingIsTyped()) {
        keys_.chop(1);
        return true;
    }
    if (!isLetter(key))
        return false;
    if (!asksForHint(key.text()))
        keys_ += key.text();
    return true;
}

} // namespace shell
