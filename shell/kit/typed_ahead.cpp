#include "shell/kit/typed_ahead.h"

#include "shell/kit/answer_box.h"
#include "shell/kit/controls.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenuBar>

namespace shell {

namespace {

constexpr QChar LineEnd = u'\n';

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
    if (!receiver->isWidgetType() || static_cast<QWidget*>(receiver)->window() != &window_ ||
        qobject_cast<QMenuBar*>(receiver) != nullptr)
        return false;
    if (event->type() == QEvent::KeyPress)
        return keeps(*static_cast<QKeyEvent*>(event));
    if (event->type() != QEvent::InputMethod)
        return false;
    keep(static_cast<QInputMethodEvent*>(event)->commitString());
    return true;
}

bool TypedAhead::keeps(const QKeyEvent& key)
{
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
    if (!writes(key))
        return false;
    keep(key.text());
    return true;
}

void TypedAhead::keep(const QString& typed)
{
    if (!asksForHint(typed))
        keys_ += typed;
}

} // namespace shell
