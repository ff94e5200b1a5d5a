#include "app/held_keys.h"

#include "shell/windows/enter_key.h"

namespace app {

bool HeldKeys::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    return key.isAutoRepeat() && (shell::isEnter(key) || key.key() == Qt::Key_Escape);
}

} // namespace app
