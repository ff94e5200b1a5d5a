#pragma once

#include <QObject>

namespace shell {
class Window;
}

namespace app {

/// The window of the program that the keys go to: not while a menu is open or a message stands.
const shell::Window* windowWithTheKeys();

/// Sees every key before the windows do, as long as it lives. F1 asks for the guide in each window of the
/// program, though not in an open menu or a message. F1, Enter and Escape count once however long they are
/// held: a key that is still down when a pause ends must not answer the next question. A letter with Alt
/// enters no line: it is that of a menu or a button, even where the window has none or it is disabled. A
/// button is pressed at once by its letter. Escape closes a list that is open, and not its window.
class KeyFilter : public QObject {
    Q_OBJECT

public:
    KeyFilter();

Q_SIGNALS:
    /// By this window.
    void helpRequested(const shell::Window& window);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
};

} // namespace app
