#include "shell/windows/find_field.h"

#include "shell/kit/controls.h"

#include <QKeyEvent>

namespace shell {

void FindField::showFound(bool found)
{
    QPalette colours;
    if (!found)
        colours.setColor(QPalette::Text, palette().color(QPalette::PlaceholderText));
    setPalette(colours);
}

// Claimed here, Escape is a key of the field and no shortcut of the window.
bool FindField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void FindField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT escaped();
    else if (!isEnter(*event))
        QLineEdit::keyPressEvent(event);
    else if (event->modifiers() & Qt::ShiftModifier)
        Q_EMIT previousRequested();
    else
        Q_EMIT nextRequested();
}

} // namespace shell
