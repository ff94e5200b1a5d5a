#include "tests/support/window_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>

namespace tests {

namespace {

QWidget& focused(QWidget& window)
{
    QWidget* const widget = window.focusWidget();
    return widget == nullptr ? window : *widget;
}

} // namespace

WindowTest::WindowTest()
{
    fake.whileWaiting = [] { QApplication::processEvents(); };
}

QWidget* shownWindow(const QString& name)
{
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

void click(QWidget& window, const QString& button)
{
    QTest::mouseClick(&control<QAbstractButton>(window, button), Qt::LeftButton);
    QApplication::processEvents();
}

void clickRow(QListWidget& list, int row)
{
    const QPoint middle = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QApplication::processEvents();
}

void doubleClickRow(QListWidget& list, int row)
{
    const QPoint middle = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QApplication::processEvents();
}

void type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &focused(window), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    QApplication::processEvents();
}

void press(QWidget& window, Qt::Key key)
{
    if (window.isVisible())
        QApplication::setActiveWindow(&window);
    QTest::keyClick(&focused(window), key);
    QApplication::processEvents();
}

QString focusIn(const QWidget& window)
{
    const QWidget* const widget = window.focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
}

} // namespace tests
