#pragma once

#include <QObject>

namespace app {

/// Lets Enter and Escape count once however long they are held: a key that is still down when a pause ends
/// must not answer the next question.
class HeldKeys : public QObject {
    Q_OBJECT

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace app
