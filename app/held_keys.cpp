#include "app/held_keys.h"

#include <QKeyEvent>

namespace app {

bool HeldKeys::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool counts =
        key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || key->key() == Qt::Key_Escape;
    return counts && key->isAutoRepeat();
}

} // namespace app
