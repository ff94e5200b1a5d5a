#include "tests/support/window_test.h"

#include "app/navigation.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <utility>

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

WindowTest::~WindowTest() = default;

QWidget& WindowTest::start()
{
    navigation_ = std::make_unique<app::Navigation>();
    navigation_->start();
    QApplication::processEvents();
    return shown("MainMenu");
}

QWidget& WindowTest::open(const QString& buttonOrItem, const QString& window)
{
    QWidget& menu = navigation_ == nullptr ? start() : shown("MainMenu");
    if (menu.findChild<QAction*>(buttonOrItem) != nullptr)
        choose(menu, buttonOrItem);
    else
        click(menu, buttonOrItem);
    return shown(window);
}

void WindowTest::duringPause(std::function<void()> action)
{
    fake.whileWaiting = [this, action = std::move(action)] {
        fake.whileWaiting = [] { QApplication::processEvents(); };
        QApplication::processEvents();
        action();
    };
}

QWidget* shownWindow(const QString& name)
{
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

QWidget& shown(const QString& name)
{
    QWidget* const window = shownWindow(name);
    if (window == nullptr)
        throw std::runtime_error("not shown: " + name.toStdString());
    return *window;
}

QString label(const QWidget& window, const QString& name)
{
    return control<QLabel>(window, name).text();
}

QStringList rows(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}

void click(QWidget& window, const QString& button)
{
    QTest::mouseClick(&control<QAbstractButton>(window, button), Qt::LeftButton);
    QApplication::processEvents();
}

void choose(QWidget& window, const QString& item)
{
    control<QAction>(window, item).trigger();
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
    clickRow(list, row);
    const QPoint middle = list.visualItemRect(list.item(row)).center();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    QApplication::processEvents();
}

void type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &focused(window), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    QApplication::processEvents();
}

void fill(QWidget& window, const QString& line, const QString& text)
{
    auto& field = control<QLineEdit>(window, line);
    field.setFocus();
    field.selectAll();
    type(window, text);
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
