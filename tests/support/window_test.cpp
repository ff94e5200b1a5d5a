#include "tests/support/window_test.h"

#include "app/start_and_end.h"
#include "shell/kit/indicator_style.h"

namespace tests {

namespace {

QWidget& focused(QWidget& window)
{
    return window.focusWidget() == nullptr ? window : *window.focusWidget();
}

} // namespace

QWidget& WindowTest::start()
{
    navigation_.reset();
    app::loadLooks();
    navigation_ = std::make_unique<app::Navigation>();
    navigation_->start();
    QApplication::processEvents();
    return shown("MainMenu");
}

QWidget& WindowTest::open(const QString& buttonOrItem, const QString& window)
{
    if (navigation_ == nullptr)
        start();
    // A drill, its chooser of tenses, and its chooser of classes may hide it.
    for (int hiding = 3; hiding > 0 && shownWindow("MainMenu") == nullptr; --hiding)
        for (QWidget* const above : QApplication::topLevelWidgets())
            if (above->isVisible() && above->objectName() != "MainMenu")
                above->close();
    QWidget& menu = shown("MainMenu");
    menu.findChild<QAction*>(buttonOrItem) ? choose(menu, buttonOrItem) : click(menu, buttonOrItem);
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

void click(QWidget& window, const QString& name)
{
    auto& clicked = control<QAbstractButton>(window, name);
    QTest::mouseClick(&clicked, Qt::LeftButton, Qt::NoModifier, QPoint(8, clicked.height() / 2));
    QApplication::processEvents();
}

void choose(QWidget& window, const QString& item)
{
    control<QAction>(window, item).trigger();
    QApplication::processEvents();
}

void clickRow(QListWidget& list, int row)
{
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    QApplication::processEvents();
}

void doubleClickRow(QListWidget& list, int row)
{
    clickRow(list, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    QApplication::processEvents();
}

void type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &focused(window), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    QApplication::processEvents();
}

void answer(QWidget& window, const QString& text)
{
    type(window, text);
    press(window, Qt::Key_Return);
}

void fill(QLineEdit& line, const QString& text)
{
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    type(*line.window(), text);
}

void press(QWidget& window, Qt::Key key, int times)
{
    if (window.isVisible())
        QApplication::setActiveWindow(&window);
    for (int i = 0; i < times; ++i)
        QTest::keyClick(&focused(window), key);
    QApplication::processEvents();
}

QString focusIn(const QWidget& window)
{
    return window.focusWidget() == nullptr ? "" : window.focusWidget()->objectName();
}

std::vector<std::function<void(QWidget&)>> waysToLeave(const QString& button)
{
    return {[button](QWidget& window) { click(window, button); },
            [](QWidget& window) { press(window, Qt::Key_Escape); }, [](QWidget& window) { window.close(); }};
}

} // namespace tests

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The screenless platform complains that it can neither raise nor grab.
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    qputenv("QT_HASH_SEED", "0");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    QApplication::setStyle(new shell::IndicatorStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
