#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

#include <tuple>

namespace {

using shell::settings;
using tests::control;
using tests::press;

class DelayInterval : public tests::WindowTest {
protected:
    QWidget& openWindow() { return open("SetDelay", "DelayInterval"); }

    static QScrollBar& scroll(QWidget& window) { return control<QScrollBar>(window, "DelayScroll"); }
    static QString label(QWidget& window) { return tests::label(window, "DelayLabel"); }
    static bool isLit(QWidget& window) { return control<QLabel>(window, "DelayLabel").autoFillBackground(); }
};

TEST_F(DelayInterval, StandsInTheMiddleAboveTheMainWindow)
{
    QWidget& window = openWindow();
    EXPECT_NE(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    EXPECT_EQ(settings.ActiveWindowName, "delay");
    const QSize screen = window.screen()->size();
    EXPECT_NEAR(window.x(), (screen.width() - window.width()) / 2, 1);
    EXPECT_NEAR(window.y(), (screen.height() - window.height()) / 2, 1);
}

TEST_F(DelayInterval, DividesTheDelayByTenWhenItIsConfirmedUnmoved)
{
    QWidget& window = openWindow();
    EXPECT_EQ(scroll(window).value(), 2);
    EXPECT_EQ(label(window), " 0.2 seconds");
    tests::click(window, "DelayOK");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    EXPECT_EQ(settings.SettingsChangeCount, 1);
}

TEST_F(DelayInterval, IsSetWithTheKeysAlone)
{
    QWidget& window = openWindow();
    EXPECT_EQ(tests::focusIn(window), "DelayScroll");
    press(window, Qt::Key_End);
    EXPECT_EQ(label(window), " 100 seconds");
    press(window, Qt::Key_Home);
    EXPECT_EQ(label(window), " 0 seconds");
    press(window, Qt::Key_PageUp);
    for (int i = 0; i < 5; ++i)
        press(window, Qt::Key_Right);
    EXPECT_EQ(label(window), " 1.5 seconds");
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 1);
}

TEST_F(DelayInterval, LeavesTheDelayAloneWhenItIsCancelled)
{
    QWidget& window = openWindow();
    for (const auto leave :
         {+[](QWidget& left) { tests::click(left, "DelayCancel"); },
          +[](QWidget& left) { press(left, Qt::Key_Escape); }, +[](QWidget& left) { left.close(); }}) {
        scroll(openWindow()).setValue(500);
        leave(window);
        EXPECT_FALSE(window.isVisible());
    }
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
    openWindow();
    EXPECT_EQ(scroll(window).value(), 2);
}

TEST_F(DelayInterval, SpeaksEnglishWhereTheLanguageHasNoTexts)
{
    QWidget& window = openWindow();
    for (const auto& [language, title, cancel] : {std::tuple{"German", "Verzögerungsintervall", "&Abbruch"},
                                                  {"French", "Set Delay Factor", "&Cancel"},
                                                  {"Latin", "Moram electronicam ordina!", "&Reverte!"},
                                                  {"Volapük", "Set Delay Factor", "&Cancel"}}) {
        window.close();
        settings.CurrentLanguage = language;
        openWindow();
        EXPECT_EQ(window.windowTitle(), title);
        EXPECT_EQ(control<QPushButton>(window, "DelayCancel").text(), cancel);
    }
}

TEST_F(DelayInterval, TriesTheLengthThatItShows)
{
    QWidget& window = openWindow();
    scroll(window).setValue(125);
    const double before = fake.clock;
    bool lit = false;
    fake.whileWaiting = [&] { lit = isLit(window); };
    tests::click(window, "DelayTest");
    EXPECT_NEAR(fake.clock - before, 12.5, 0.02);
    EXPECT_TRUE(lit);
    EXPECT_FALSE(isLit(window));
    EXPECT_EQ(settings.DelaySeconds, 2);
}

TEST_F(DelayInterval, TriesOneLengthAtATime)
{
    QWidget& window = openWindow();
    scroll(window).setValue(20);
    fake.whileWaiting = [&] {
        tests::click(window, "DelayTest");
        scroll(window).setValue(1000);
    };
    const double before = fake.clock;
    tests::click(window, "DelayTest");
    EXPECT_EQ(fake.waits, 1);
    EXPECT_NEAR(fake.clock - before, 2, 0.02);
    EXPECT_EQ(label(window), " 100 seconds");
}

TEST_F(DelayInterval, AbandonsATrialWhenItCloses)
{
    QWidget& window = openWindow();
    scroll(window).setValue(1000);
    fake.whileWaiting = [&] {
        fake.whileWaiting = {};
        window.close();
        openWindow();
        EXPECT_FALSE(isLit(window));
        scroll(window).setValue(30);
        tests::click(window, "DelayTest");
        EXPECT_EQ(fake.waits, 2);
    };
    tests::click(window, "DelayTest");
    EXPECT_EQ(fake.waits, 2);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(isLit(window));
}

TEST_F(DelayInterval, AbandonsATrialWhenTheProgramEnds)
{
    QWidget& window = openWindow();
    scroll(window).setValue(1000);
    fake.whileWaiting = [&] { fake.endProgram(0); };
    tests::click(window, "DelayTest");
    EXPECT_EQ(fake.waits, 1);
}

TEST_F(DelayInterval, OpensAGuideThatCanBeUsedMeanwhile)
{
    QWidget& window = openWindow();
    press(window, Qt::Key_F1);
    QWidget* const help = tests::shownWindow("Help");
    ASSERT_NE(help, nullptr);
    tests::click(*help, "Command1");
    EXPECT_FALSE(help->isVisible());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(DelayInterval, StandsAboveTheGuideThatStoodAboveIt)
{
    QWidget& window = openWindow();
    press(window, Qt::Key_F1);
    window.close();
    QWidget& help = tests::shown("Help");
    QApplication::setActiveWindow(&help);
    openWindow();
    EXPECT_TRUE(help.windowHandle()->isAncestorOf(window.windowHandle()));
    EXPECT_FALSE(window.windowHandle()->isAncestorOf(help.windowHandle()));
}

} // namespace
