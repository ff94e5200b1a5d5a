#pragma once

#include "tests/support/fresh_state.h"

#include <QString>
#include <QTest>
#include <QWidget>

#include <stdexcept>

class QListWidget;

namespace tests {

/// Drives windows as a learner does: controls are found by their object names, and get real key and mouse
/// events. While the program pauses, events are worked off.
class WindowTest : public FreshState {
protected:
    WindowTest();
};

/// The visible window with this object name; nullptr where it is not shown.
QWidget* shownWindow(const QString& name);

/// A control of a window by its object name. Throws std::runtime_error where there is none.
template <typename Control>
Control& control(QWidget& window, const QString& name)
{
    auto* const found = window.findChild<Control*>(name);
    if (found == nullptr)
        throw std::runtime_error("no control " + name.toStdString());
    return *found;
}

/// Clicks a button with the mouse.
void click(QWidget& window, const QString& button);

/// Clicks a row of a list, or clicks it twice.
void clickRow(QListWidget& list, int row);
void doubleClickRow(QListWidget& list, int row);

/// Types into the widget that has the focus in a window, key by key.
void type(QWidget& window, const QString& text);
/// Presses a key in the window, which becomes the active one.
void press(QWidget& window, Qt::Key key);

/// The object name of the widget that has the focus in a window.
QString focusIn(const QWidget& window);

} // namespace tests
