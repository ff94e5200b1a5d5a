#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>

#include <set>

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

    // Of either trial a second is left.
    fake.waits = 0;
    tryLength([&] {
        fake.clock -= 1;
        window.close();
        openWindow();
        EXPECT_FALSE(isLit(window));
    });
    EXPECT_EQ(fake.waits, 1);
    tryLength([&] {
        fake.clock -= 1;
        fake.endProgram(0);
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

class FrmOptions : public tests::WindowTest {
protected:
    QWidget& openWindow() { return open("OptionsOptions", "frmOptions"); }

    static void expectFrame(QWidget& window, int chosen)
    {
        for (const int i : {0, 1}) {
            const auto& frame = tests::control<QWidget>(window, QStringLiteral("picOptions%1").arg(i));
            EXPECT_EQ(frame.x(), i == chosen ? 14 : -1333) << i;
            EXPECT_EQ(frame.isEnabled(), i == chosen) << i;
        }
    }
};

TEST_F(FrmOptions, BringsTheFrameOfTheChosenTabInAndSendsTheOthersOff)
{
    for (const auto& leave : tests::waysToLeave("cmdCancel")) {
        QWidget& window = openWindow();
        auto& tabs = tests::control<QTabBar>(window);
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
        expectFrame(window, 0);
        press(window, Qt::Key_Right);
        expectFrame(window, 1);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
        expectFrame(window, 0);
        press(window, Qt::Key_Right);
        window.resize(window.size() * 2);
        expectFrame(window, 1);
        leave(window);
        EXPECT_FALSE(window.isVisible());
    }
}

TEST_F(FrmOptions, ShowsTheDelayAndSetsNothingAndSaysWhatIsMissing)
{
    tests::choose(start(), "RandomOrder");
    settings.DelaySeconds = 7;
    QWidget& window = openWindow();
    QStringList orders;
    for (const QLabel* const text : tests::control<QWidget>(window, "picOptions1").findChildren<QLabel*>())
        orders << text->text();
    EXPECT_EQ(orders.join(", "), "Order, Random Order, Case Order, Nom. Gen. Dat. Acc. Abl.");
    auto& slider = tests::control<QSlider>(window, "GODelaySlider");
    EXPECT_EQ(slider.value(), 7);
    slider.setFocus();
    press(window, Qt::Key_End);
    EXPECT_EQ(slider.value(), 100);
    click(window, "cmdApply");
    EXPECT_EQ(fake.messages.back(), "Place code here to set options w/o closing dialog!");
    click(window, "cmdOK");
    EXPECT_EQ(fake.messages.back(), "Place code here to set options and close dialog!");
    EXPECT_TRUE(window.isVisible());
    fake.dismissMessage();
    EXPECT_FALSE(window.isVisible());
    openWindow();
    EXPECT_EQ(slider.value(), 7);
    EXPECT_EQ(settings.SettingsChangeCount, 1);
}

class Help : public tests::WindowTest {
protected:
    QTextBrowser& openGuide() { return tests::control<QTextBrowser>(open("HELPME", "Help"), "HelpText"); }
};

TEST_F(Help, HasATargetForEveryLinkAndALinkToEveryChapter)
{
    tests::copySample("morvanti.hlp");
    const QTextBrowser& text = openGuide();
    std::set<QString> chapters;
    std::set<QString> links;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            for (const QString& name : format.anchorNames())
                chapters.insert('#' + name);
            if (!format.anchorHref().isEmpty())
                links.insert(format.anchorHref());
        }
    EXPECT_GT(chapters.size(), 20U);
    EXPECT_TRUE(std::ranges::includes(chapters, links));
    EXPECT_EQ(links.size() + 1, chapters.size());
}

TEST_F(Help, GoesToTheChapterOfALinkAndBackAndOpensAtItsBeginning)
{
    tests::copySample("morvanti.hlp");
    QTextBrowser& text = openGuide();
    QTextCursor cursor = text.document()->find("morvanti.ini");
    cursor.setPosition(cursor.selectionStart() + 2);
    QTest::mouseClick(text.viewport(), Qt::LeftButton, Qt::NoModifier, text.cursorRect(cursor).center());
    QApplication::processEvents();
    const QTextCursor top = text.cursorForPosition(QPoint(text.viewport()->width() / 2, 40));
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_GE(top.position(), text.document()->find("Your settings: 36 lines").position() - 60);
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
    text.verticalScrollBar()->setValue(100);
    EXPECT_EQ(openGuide().verticalScrollBar()->value(), 0);
}

TEST_F(Help, ShowsAPlainTextAsItStandsAndSaysWhyThereIsNone)
{
    EXPECT_TRUE(openGuide().toPlainText().contains("morvanti.hlp"));
    press(tests::shown("Help"), Qt::Key_Escape);
    EXPECT_EQ(tests::shownWindow("Help"), nullptr);
    const std::string plain = "MY GUIDE\n\n* a *star* and   blanks\n  # no heading\n<b>x</b>";
    tests::writeFile("morvanti.hlp", plain);
    EXPECT_EQ(openGuide().toPlainText().toStdString(), plain);
}

} // namespace
