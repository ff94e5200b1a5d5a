#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QScrollBar>
#include <QWindow>

namespace {

using shell::settings;
using tests::click;
using tests::press;

class DelayInterval : public tests::WindowTest {
protected:
    QWidget& openWindow() { return open("SetDelay", "DelayInterval"); }

    static QScrollBar& scroll(QWidget& window) { return tests::control<QScrollBar>(window); }
    static std::string length(QWidget& window) { return tests::label(window, "DelayLabel").toStdString(); }
    static bool isLit(QWidget& window)
    {
        return tests::control<QLabel>(window, "DelayLabel").autoFillBackground();
    }
};

TEST_F(DelayInterval, IsSetWithTheKeysAloneAndDividesTheDelayByTenWhereItIsLeftUnmoved)
{
    QWidget& window = openWindow();
    EXPECT_EQ(length(window), " 0.2 seconds");
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    openWindow();
    press(window, Qt::Key_End);
    EXPECT_EQ(length(window), " 100 seconds");
    press(window, Qt::Key_Home);
    EXPECT_EQ(length(window), " 0 seconds");
    press(window, Qt::Key_PageUp);
    press(window, Qt::Key_Right, 5);
    EXPECT_EQ(length(window), " 1.5 seconds");
    click(window, "DelayOK");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 2);
}

TEST_F(DelayInterval, LeavesTheDelayAloneWhenItIsCancelled)
{
    for (const auto& leave : tests::waysToLeave("DelayCancel")) {
        QWidget& window = openWindow();
        EXPECT_EQ(length(window), " 0.2 seconds");
        press(window, Qt::Key_End);
        leave(window);
        EXPECT_FALSE(window.isVisible());
    }
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
}

TEST_F(DelayInterval, TriesTheLengthItShowsOnceAndAbandonsItWhenItClosesOrTheProgramEnds)
{
    QWidget& window = openWindow();
    scroll(window).setValue(125);
    const double before = fake.clock;
    const auto tryLength = [&](const std::function<void()>& meanwhile) {
        duringPause(meanwhile);
        click(window, "DelayTest");
    };
    tryLength([&] {
        EXPECT_TRUE(isLit(window));
        click(window, "DelayTest");
        scroll(window).setValue(1000);
    });
    EXPECT_NEAR(fake.clock - before, 12.5, 0.02);
    EXPECT_EQ(length(window), " 100 seconds");
    EXPECT_FALSE(isLit(window));
    EXPECT_EQ(settings.DelaySeconds, 2);

    fake.waits = 0;
    tryLength([&] {
        window.close();
        openWindow();
        EXPECT_FALSE(isLit(window));
        press(window, Qt::Key_End);
        tryLength([&] { fake.endProgram(0); });
    });
    EXPECT_EQ(fake.waits, 2);
}

TEST_F(DelayInterval, StandsAboveTheMainWindowAndTheGuideThatStoodAboveIt)
{
    QWidget& window = openWindow();
    EXPECT_NE(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    press(window, Qt::Key_F1);
    QWidget& help = tests::shown("Help");
    EXPECT_TRUE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    window.close();
    tests::activate(help);
    tests::choose(tests::shown("MainMenu"), "SetDelay");
    EXPECT_TRUE(help.windowHandle()->isAncestorOf(window.windowHandle()));
    EXPECT_FALSE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    click(help, "Command1");
    EXPECT_FALSE(help.isVisible());
    EXPECT_TRUE(window.isVisible());
}

} // namespace
