#include "app/navigation.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

namespace {

using shell::settings;
using tests::control;

class DelayInterval : public tests::WindowTest {
protected:
    QWidget& open()
    {
        navigation_ = std::make_unique<app::Navigation>();
        navigation_->start();
        return openAgain();
    }

    static QWidget& openAgain()
    {
        control<QAction>(*tests::shownWindow("MainMenu"), "SetDelay").trigger();
        QApplication::processEvents();
        return *tests::shownWindow("DelayInterval");
    }

    static QScrollBar& scroll(QWidget& window) { return control<QScrollBar>(window, "DelayScroll"); }
    static QString label(QWidget& window) { return control<QLabel>(window, "DelayLabel").text(); }
    static bool isLit(QWidget& window) { return control<QLabel>(window, "DelayLabel").autoFillBackground(); }

private:
    std::unique_ptr<app::Navigation> navigation_;
};

TEST_F(DelayInterval, StandsInTheMiddleAboveTheMainWindow)
{
    QWidget& window = open();
    EXPECT_NE(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    EXPECT_EQ(settings.ActiveWindowName, "delay");
    const QSize screen = window.screen()->size();
    EXPECT_NEAR(window.x(), (screen.width() - window.width()) / 2, 1);
    EXPECT_NEAR(window.y(), (screen.height() - window.height()) / 2, 1);
}

TEST_F(DelayInterval, DividesTheDelayByTenWhenItIsConfirmedUnmoved)
{
    QWidget& window = open();
    EXPECT_EQ(scroll(window).value(), 2);
    EXPECT_EQ(label(window), " 0.2 seconds");
    tests::click(window, "DelayOK");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    EXPECT_EQ(settings.SettingsChangeCount, 1);
}

TEST_F(DelayInterval, IsSetWithTheKeysAlone)
{
    QWidget& window = open();
    EXPECT_EQ(tests::focusIn(window), "DelayScroll");
    tests::press(window, Qt::Key_End);
    EXPECT_EQ(label(window), " 100 seconds");
    tests::press(window, Qt::Key_Home);
    EXPECT_EQ(label(window), " 0 seconds");
    tests::press(window, Qt::Key_PageUp);
    for (int i = 0; i < 5; ++i)
        tests::press(window, Qt::Key_Right);
    EXPECT_EQ(label(window), " 1.5 seconds");
    tests::press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 1);
}

TEST_F(DelayInterval, LeavesTheDelayAloneWhenItIsCancelled)
{
    QWidget& window = open();
    const auto leaveWith = [&](const std::function<void()>& leave) {
        openAgain();
        scroll(window).setValue(500);
        leave();
        EXPECT_FALSE(window.isVisible());
    };
    leaveWith([&] { tests::click(window, "DelayCancel"); });
    leaveWith([&] { tests::press(window, Qt::Key_Escape); });
    leaveWith([&] { window.close(); });
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
    openAgain();
    EXPECT_EQ(scroll(window).value(), 2);
}

TEST_F(DelayInterval, SpeaksEnglishWhereTheLanguageHasNoTexts)
{
    QWidget& window = open();
    struct Row {
        const char* language;
        const char* title;
        const char* ok;
        const char* cancel;
        const char* test;
    };
    for (const auto& [language, title, ok, cancel, test] :
         {Row{"German", "Verzögerungsintervall", "&OK", "&Abbruch", "&Probe"},
          Row{"French", "Set Delay Factor", "&OK", "&Cancel", "&Test"},
          Row{"Latin", "Moram electronicam ordina!", "&Ita", "&Reverte!", "&Probatio"},
          Row{"Volapük", "Set Delay Factor", "&OK", "&Cancel", "&Test"}}) {
        window.close();
        settings.CurrentLanguage = language;
        openAgain();
        EXPECT_EQ(window.windowTitle(), title);
        EXPECT_EQ(control<QPushButton>(window, "DelayOK").text(), ok);
        EXPECT_EQ(control<QPushButton>(window, "DelayCancel").text(), cancel);
        EXPECT_EQ(control<QPushButton>(window, "DelayTest").text(), test);
    }
}

TEST_F(DelayInterval, TriesTheLengthThatItShows)
{
    QWidget& window = open();
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
    QWidget& window = open();
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
    QWidget& window = open();
    scroll(window).setValue(1000);
    fake.whileWaiting = [&] {
        fake.whileWaiting = {};
        window.close();
        openAgain();
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
    QWidget& window = open();
    scroll(window).setValue(1000);
    fake.whileWaiting = [&] { fake.endProgram(0); };
    tests::click(window, "DelayTest");
    EXPECT_EQ(fake.waits, 1);
}

TEST_F(DelayInterval, OpensAGuideThatCanBeUsedMeanwhile)
{
    QWidget& window = open();
    tests::press(window, Qt::Key_F1);
    QWidget* const help = tests::shownWindow("Help");
    ASSERT_NE(help, nullptr);
    tests::click(*help, "Command1");
    EXPECT_FALSE(help->isVisible());
    EXPECT_TRUE(window.isVisible());
}

} // namespace
