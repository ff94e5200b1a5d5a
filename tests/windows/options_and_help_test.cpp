#include "shell/settings.h"
#include "tests/support/window_test.h"

namespace {

using shell::settings;
using tests::click;
using tests::label;
using tests::press;

using DelayInterval = tests::WindowTest;
using FrmOptions = tests::WindowTest;
using Help = tests::WindowTest;

TEST_F(DelayInterval, IsSetWithTheKeysAloneAndDividesTheDelayByTenWhereItIsLeftUnmoved)
{
    for (const auto& leave : tests::waysToLeave("DelayCancel")) {
        QWidget& left = open("SetDelay", "DelayInterval");
        EXPECT_EQ(label(left, "DelayLabel"), " 0.2 seconds");
        press(left, Qt::Key_End);
        leave(left);
        EXPECT_FALSE(left.isVisible());
    }
    EXPECT_EQ(settings.DelaySeconds, 2);
    QWidget& window = open("SetDelay", "DelayInterval");
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.DelaySeconds, 0);
    // Halves go to the even second.
    for (const auto& [pages, length] : {std::pair{1, " 1.5 seconds"}, {2, " 2.5 seconds"}}) {
        settings.DelaySeconds = 0;
        press(open("SetDelay", "DelayInterval"), Qt::Key_PageUp, pages);
        press(window, Qt::Key_Right, 5);
        EXPECT_EQ(label(window, "DelayLabel"), length);
        click(window, "DelayOK");
        EXPECT_FALSE(window.isVisible());
        EXPECT_EQ(settings.DelaySeconds, 2);
    }
    EXPECT_EQ(settings.SettingsChangeCount, 3);
}

TEST_F(DelayInterval, TriesTheLengthItShowsOnceAndAbandonsItWhenItClosesOrTheProgramEnds)
{
    QWidget& window = open("SetDelay", "DelayInterval");
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
    EXPECT_EQ(lamp.text(), " 100 seconds");
    EXPECT_FALSE(lamp.autoFillBackground());

    for (const auto& end : {std::function<void()>([&] { window.close(); }), {[&] { fake.endProgram(0); }}}) {
        fake.waits = 0;
        duringPause([&] {
            fake.clock -= 1;
            end();
        });
        click(open("SetDelay", "DelayInterval"), "DelayTest");
        EXPECT_EQ(fake.waits, 1);
        EXPECT_FALSE(lamp.autoFillBackground() && window.isHidden());
    }
}

TEST_F(DelayInterval, StandsAboveTheMainWindowAndTheGuideThatStoodAboveIt)
{
    QWidget& window = open("SetDelay", "DelayInterval");
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

TEST_F(FrmOptions, BringsTheFrameOfTheChosenTabInAndSaysWhatIsMissing)
{
    tests::choose(start(), "RandomOrder");
    QWidget& window = open("OptionsOptions", "frmOptions");
    EXPECT_EQ(tests::control<QSlider>(window).value(), 2);
    QStringList orders;
    for (const QLabel* const text : tests::control<QFrame>(window, "picOptions1").findChildren<QLabel*>())
        orders << text->text();
    EXPECT_EQ(orders.join(", "), "Order, Random Order, Case Order, Nom. Gen. Dat. Acc. Abl.");
    auto& tabs = tests::control<QTabBar>(window);
    for (const int chosen : {0, 1, 0, 1}) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(chosen).center());
        window.resize(window.size() + QSize(9, 9));
        for (const int tab : {0, 1}) {
            const auto& frame = tests::control<QFrame>(window, QStringLiteral("picOptions%1").arg(tab));
            EXPECT_EQ(frame.isEnabled(), tab == chosen);
            EXPECT_EQ(frame.x(), tab == chosen ? 14 : -1333);
        }
    }
    click(window, "cmdApply");
    click(window, "cmdOK");
    EXPECT_EQ(fake.messages, (std::vector<std::string>{"Place code here to set options w/o closing dialog!",
                                                       "Place code here to set options and close dialog!"}));
    EXPECT_TRUE(window.isVisible());
    fake.dismissMessage();
    for (const auto& leave : tests::waysToLeave("cmdCancel")) {
        EXPECT_FALSE(window.isVisible());
        leave(open("OptionsOptions", "frmOptions"));
        EXPECT_EQ(tabs.currentIndex(), 0);
    }
    EXPECT_FALSE(window.isVisible());
}

// The desktop's frame and title count: at the first showing, and after the learner moved the window.
TEST_F(Help, StandsInTheMiddleOfTheScreenWithItsFrameAsTheSmallWindowsDo)
{
    for (const auto& [item, name] :
         {std::pair{"HELPME", "Help"}, {"MainABout", "About"}, {"SetDelay", "DelayInterval"}})
        for (int opening = 1; opening <= 3; ++opening) {
            QWidget& window = open(item, name);
            const QPoint off = window.frameGeometry().center() - window.screen()->geometry().center();
            EXPECT_NE(window.frameGeometry(), window.geometry());
            EXPECT_LE(off.manhattanLength(), 2) << name << opening;
            window.move(3, 3);
            window.close();
        }
}

TEST_F(Help, HasATargetForEveryLinkAndALinkToEveryChapterAndGoesThereAndBack)
{
    tests::copySample("morvanti.hlp");
    auto& text = tests::control<QTextBrowser>(open("HELPME", "Help"));
    QSet<QString> chapters;
    QSet<QString> links;
    const QRegularExpression anchor(R"(<a (?:name|href)="(#?)([^"]+))");
    for (const auto& match : anchor.globalMatch(text.toHtml()))
        (match.captured(1).isEmpty() ? chapters : links).insert(match.captured(2));
    EXPECT_GT(chapters.size(), 20);
    EXPECT_TRUE(chapters.contains(links));
    EXPECT_EQ(links.size() + 1, chapters.size());

    QTextCursor cursor = text.document()->find("morvanti.ini");
    cursor.setPosition(cursor.selectionStart() + 2);
    QTest::mouseClick(text.viewport(), Qt::LeftButton, Qt::NoModifier, text.cursorRect(cursor).center());
    QApplication::processEvents();
    const QTextCursor top = text.cursorForPosition(QPoint(text.viewport()->width() / 2, 40));
    const QScrollBar& scroll = *text.verticalScrollBar();
    EXPECT_GT(scroll.value(), 0);
    EXPECT_GE(top.position(), text.document()->find("Your settings: 36 lines").position() - 60);
    QTest::keyClick(&text, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(scroll.value(), 0);
    press(tests::shown("Help"), Qt::Key_End);
    EXPECT_GT(scroll.value(), 0);
    open("HELPME", "Help");
    EXPECT_EQ(scroll.value(), 0);
}

TEST_F(Help, ShowsAPlainTextAsItStandsAndSaysWhyThereIsNone)
{
    const std::string plain = "MY GUIDE\n\n* a *star* and   blanks\n  # no heading\n<b>x</b>";
    for (const std::string& shown : {std::string("morvanti.hlp: No such file or directory"), plain}) {
        QWidget& window = open("HELPME", "Help");
        EXPECT_EQ(tests::control<QTextBrowser>(window).toPlainText().toStdString(), shown);
        press(window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
        tests::writeFile("morvanti.hlp", plain);
    }
}

} // namespace
