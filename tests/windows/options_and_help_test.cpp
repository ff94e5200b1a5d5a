#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <set>

namespace {

using shell::settings;
using tests::click;
using tests::press;

class DelayInterval : public tests::WindowTest {
protected:
    QWidget& openWindow() { return open("SetDelay", "DelayInterval"); }

    static std::string length(QWidget& window) { return tests::label(window, "DelayLabel").toStdString(); }
};

TEST_F(DelayInterval, IsSetWithTheKeysAloneAndDividesTheDelayByTenWhereItIsLeftUnmoved)
{
    for (const auto& leave : tests::waysToLeave("DelayCancel")) {
        QWidget& left = openWindow();
        EXPECT_EQ(length(left), " 0.2 seconds");
        press(left, Qt::Key_End);
        EXPECT_EQ(length(left), " 100 seconds");
        leave(left);
        EXPECT_FALSE(left.isVisible());
    }
    EXPECT_EQ(settings.DelaySeconds, 2);
    QWidget& window = openWindow();
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    press(openWindow(), Qt::Key_PageUp);
    press(window, Qt::Key_Right, 5);
    EXPECT_EQ(length(window), " 1.5 seconds");
    click(window, "DelayOK");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 2);
}

TEST_F(DelayInterval, TriesTheLengthItShowsOnceAndAbandonsItWhenItClosesOrTheProgramEnds)
{
    QWidget& window = openWindow();
    auto& scroll = tests::control<QScrollBar>(window);
    const auto& lamp = tests::control<QLabel>(window, "DelayLabel");
    scroll.setValue(125);
    const double before = fake.clock;
    duringPause([&] {
        EXPECT_TRUE(lamp.autoFillBackground());
        click(window, "DelayTest");
        scroll.setValue(1000);
    });
    click(window, "DelayTest");
    EXPECT_NEAR(fake.clock - before, 12.5, 0.02);
    EXPECT_EQ(length(window), " 100 seconds");
    EXPECT_FALSE(lamp.autoFillBackground());
    EXPECT_EQ(settings.DelaySeconds, 2);

    const std::function<void()> endings[] = {[&] { window.close(); }, [this] { fake.endProgram(0); }};
    for (const auto& end : endings) {
        fake.waits = 0;
        duringPause([&] {
            fake.clock -= 1;
            end();
        });
        click(openWindow(), "DelayTest");
        EXPECT_EQ(fake.waits, 1);
    }
    openWindow();
    EXPECT_FALSE(lamp.autoFillBackground());
}

TEST_F(DelayInterval, StandsAboveTheMainWindowAndTheGuideThatStoodAboveIt)
{
    QWidget& window = openWindow();
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    press(window, Qt::Key_F1);
    QWidget& help = tests::shown("Help");
    EXPECT_TRUE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    window.close();
    QApplication::setActiveWindow(&help);
    tests::choose(tests::shown("MainMenu"), "SetDelay");
    EXPECT_TRUE(help.windowHandle()->isAncestorOf(window.windowHandle()));
    EXPECT_FALSE(window.windowHandle()->isAncestorOf(help.windowHandle()));
    click(help, "Command1");
    EXPECT_FALSE(help.isVisible());
    EXPECT_TRUE(window.isVisible());
}

using FrmOptions = tests::WindowTest;

TEST_F(FrmOptions, BringsTheFrameOfTheChosenTabInAndSetsNothingAndSaysWhatIsMissing)
{
    tests::choose(start(), "RandomOrder");
    settings.DelaySeconds = 7;
    auto ways = tests::waysToLeave("cmdCancel");
    ways.push_back([this](QWidget& window) {
        click(window, "cmdApply");
        EXPECT_EQ(fake.messages.back(), "Place code here to set options w/o closing dialog!");
        click(window, "cmdOK");
        EXPECT_EQ(fake.messages.back(), "Place code here to set options and close dialog!");
        EXPECT_TRUE(window.isVisible());
        fake.dismissMessage();
    });
    for (const auto& leave : ways) {
        QWidget& window = open("OptionsOptions", "frmOptions");
        auto& tabs = tests::control<QTabBar>(window);
        auto& slider = tests::control<QSlider>(window, "GODelaySlider");
        const auto& first = tests::control<QWidget>(window, "picOptions0");
        const auto& second = tests::control<QWidget>(window, "picOptions1");
        const auto expectShown = [](const QWidget& in, const QWidget& off) {
            EXPECT_EQ(std::pair(in.x(), off.x()), std::pair(14, -1333));
            EXPECT_TRUE(in.isEnabled() && !off.isEnabled());
        };
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
        expectShown(first, second);
        EXPECT_EQ(slider.value(), 7);
        slider.setFocus();
        press(window, Qt::Key_End);
        EXPECT_EQ(slider.value(), 100);
        tabs.setFocus();
        press(window, Qt::Key_Right);
        window.resize(window.size() * 2);
        expectShown(second, first);
        QStringList orders;
        for (const QLabel* const text : second.findChildren<QLabel*>())
            orders << text->text();
        EXPECT_EQ(orders.join(", "), "Order, Random Order, Case Order, Nom. Gen. Dat. Acc. Abl.");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
        expectShown(first, second);
        leave(window);
        EXPECT_FALSE(window.isVisible());
    }
}

class Help : public tests::WindowTest {
protected:
    QTextBrowser& openGuide() { return tests::control<QTextBrowser>(open("HELPME", "Help"), "HelpText"); }
};

// The desktop's frame and title count: at the first showing, and after the learner moved the window.
TEST_F(Help, StandsInTheMiddleOfTheScreenWithItsFrameAsTheSmallWindowsDo)
{
    for (const auto& [item, name] :
         {std::pair{"HELPME", "Help"}, {"MainABout", "About"}, {"SetDelay", "DelayInterval"}})
        for (int opening = 1; opening <= 3; ++opening) {
            QWidget& window = open(item, name);
            EXPECT_NE(window.frameGeometry(), window.geometry());
            EXPECT_LE(
                (window.frameGeometry().center() - window.screen()->geometry().center()).manhattanLength(), 2)
                << name << opening;
            window.move(3, 3);
            window.close();
        }
}

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
