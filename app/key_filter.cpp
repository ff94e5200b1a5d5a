#include "app/key_filter.h"

#include "shell/kit/controls.h"
#include "shell/kit/window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcutEvent>

namespace app {

namespace {

bool isLetterWithAlt(const QKeyEvent& key)
{
    return (key.modifiers() & Qt::AltModifier) && shell::hasSign(key) && !shell::writes(key);
}

// Qt shows a button pressed for a tenth of a second first; a key that follows soon would go to the window
// that the button is about to leave.
bool pressesAtOnce(QObject* receiver, const QEvent& event)
{
    if (event.type() != QEvent::Shortcut || static_cast<const QShortcutEvent&>(event).isAmbiguous())
        return false;
    auto* const button = qobject_cast<QPushButton*>(receiver);
    if (button == nullptr)
        return false;
    button->click();
    return true;
}

// A list that is open would close, and leave the key to the window as well.
bool closesOnlyWhatIsOpen(QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride || QApplication::activePopupWidget() == nullptr ||
        static_cast<const QKeyEvent&>(event).key() != Qt::Key_Escape)
        return false;
    event.accept();
    return true;
}

} // namespace

const shell::Window* windowWithTheKeys()
{
    return QApplication::activePopupWidget() == nullptr
               ? qobject_cast<const shell::Window*>(QApplication::activeWindow())
               : nullptr;
}

KeyFilter::KeyFilter()
{
    qApp->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* receiver, QEvent* event)
{
    if (pressesAtOnce(receiver, *event) || closesOnlyWhatIsOpen(*event))
        return true;
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (isLetterWithAlt(key) && qobject_cast<QLineEdit*>(receiver) != nullptr)
        return true;
    const shell::Window* const window = windowWithTheKeys();
    if (key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && window != nullptr) {
        if (!key.isAutoRepeat())
            Q_EMIT helpRequested(*window);
        return true;
    }
    return key.isAutoRepeat() && (shell::isEnter(key) || key.key() == Qt::Key_Escape);
}

} // namespace app
