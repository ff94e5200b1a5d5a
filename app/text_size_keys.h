#pragma once

#include <QObject>

namespace app {

/// Ctrl with +, - and 0 makes the type of all windows larger, smaller, and as large as the desktop's, in each
/// window of the program, though not in an open menu or a message. It sees every key of the program as long
/// as it lives.
class TextSizeKeys : public QObject {
    Q_OBJECT

public:
    TextSizeKeys();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace app
