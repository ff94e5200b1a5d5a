#pragma once

#include "app/navigation.h"
#include "tests/support/fresh_state.h"

#include <QTest>
#include <QtWidgets>

#include <memory>
#include <stdexcept>

namespace tests {

/// A control of a window by its object name, or the first of its kind where the name is left out. Throws
/// std::runtime_error where there is none.
template <typename Control>
Control& control(const QWidget& window, const QString& name = {})
{
    auto* const found = window.findChild<Control*>(name);
    if (found == nullptr)
        throw std::runtime_error("no control " + name.toStdString());
    return *found;
}

/// Drives windows as a learner does: controls are found by their object names, and get real key and mouse
/// events. While the program pauses, events are worked off. The sample lists of verbs and nouns are there.
class WindowTest : public FreshState {
protected:
    WindowTest()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        fake.whileWaiting = [] { QApplication::processEvents(); };
    }

    /// Starts the program, anew where it runs already. Returns the main window.
    QWidget& start();

    /// Opens a window by a button or an item of the main window: starts the program where it does not run
    /// yet, and else goes back to the main window, closing what hides it.
    QWidget& open(const QString& buttonOrItem, const QString& window);

    /// A list, a line, a button or check box by its name, and an answer box by its name and number.
    static auto& list(const QWidget& in, const QString& name) { return control<QListWidget>(in, name); }
    static auto& line(const QWidget& in, const QString& name) { return control<QLineEdit>(in, name); }
    static auto& button(const QWidget& in, const QString& name) { return control<QAbstractButton>(in, name); }
    static auto& box(const QWidget& in, QString name, int n) { return line(in, name += QString::number(n)); }

    /// Does something once, in the middle of the next pause.
    void duringPause(std::function<void()> action);

private:
    std::unique_ptr<app::Navigation> navigation_;
};

/// The visible window with this object name; nullptr where it is not shown.
QWidget* shownWindow(const QString& name);
/// The same; throws std::runtime_error where it is not shown.
QWidget& shown(const QString& name);

/// The text of a label, and the texts of a list.
QString label(const QWidget& window, const QString& name);
QStringList rows(const QListWidget& list);

/// Clicks a button, or the mark of a check box, with the mouse.
void click(QWidget& window, const QString& button);
/// Chooses an item of a window's menus.
void choose(QWidget& window, const QString& item);
/// Clicks a row of a list, or clicks it twice.
void clickRow(QListWidget& list, int row);
void doubleClickRow(QListWidget& list, int row);

/// Types into the widget that has the focus in a window, key by key.
void type(QWidget& window, const QString& text);
/// The same, and then Enter.
void answer(QWidget& window, const QString& text);
/// Deletes what a line holds and types into it.
void fill(QLineEdit& line, const QString& text);
/// Presses a key in the window, which becomes the active one.
void press(QWidget& window, Qt::Key key, int times = 1);

/// The object name of the widget that has the focus in a window.
QString focusIn(const QWidget& window);

/// The three ways to leave a window: with its button, with Escape, with the close box.
std::vector<std::function<void(QWidget&)>> waysToLeave(const QString& button);

} // namespace tests
