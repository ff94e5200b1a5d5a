#include "app/key_filter.h"

#include "shell/kit/controls.h"
#include "shell/kit/window.h"

#include <QApplication>
#include <QKeyEvent>

namespace app {

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

bool KeyFilter::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const shell::Window* const window = windowWithTheKeys();
    if (key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && window != nullptr) {
        if (!key.isAutoRepeat())
            Q_EMIT helpRequested(*window);
        return true;
    }
    return key.isAutoRepeat() && (shell::isEnter(key) || key.key() == Qt::Key_Escape);
}

} // namespace app
