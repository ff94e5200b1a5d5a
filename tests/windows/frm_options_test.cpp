#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QSlider>
#include <QTabBar>

namespace {

using shell::settings;
using tests::press;

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
    start();
    settings.DelaySeconds = 7;
    QWidget& window = openWindow();
    auto& slider = tests::control<QSlider>(window, "GODelaySlider");
    EXPECT_EQ(slider.value(), 7);
    slider.setFocus();
    press(window, Qt::Key_End);
    EXPECT_EQ(slider.value(), 100);
    tests::click(window, "cmdApply");
    EXPECT_EQ(fake.messages.back(), "Place code here to set options w/o closing dialog!");
    tests::click(window, "cmdOK");
    EXPECT_EQ(fake.messages.back(), "Place code here to set options and close dialog!");
    EXPECT_TRUE(window.isVisible());
    fake.dismissMessage();
    EXPECT_FALSE(window.isVisible());
    openWindow();
    EXPECT_EQ(slider.value(), 7);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
}

} // namespace
