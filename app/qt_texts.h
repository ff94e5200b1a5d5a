#pragma once

#include <QObject>

namespace app {

/// Puts Qt's own texts, those of its file dialogs, of the buttons of its messages and of the context menus of
/// its lines, into the language of the interface. They are English where Qt has no such translation, or where
/// it is not installed.
void translateQtTexts();

/// Does so whenever a context menu is about to be shown, as long as it lives: nothing is read at the start.
class ContextMenuTexts : public QObject {
    Q_OBJECT

public:
    ContextMenuTexts();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace app
