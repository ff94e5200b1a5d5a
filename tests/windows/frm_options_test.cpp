#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QSlider>
#include <QTabBar>

namespace {

using shell::settings;
using tests::control;
using Texts = std::vector<std::string>;

class FrmOptions : public tests::WindowTest {
protected:
    QWidget& openFrom(const char* item) { return open(item, "frmOptions"); }

    static void expectFrame(QWidget& window, int chosen)
    {
        for (int i = 0; i < control<QTabBar>(window, "tbsOptions").count(); ++i) {
            const auto& frame = control<QWidget>(window, QStringLiteral("picOptions%1").arg(i));
            EXPECT_EQ(frame.x(), i == chosen ? 14 : -1333) << i;
            EXPECT_EQ(frame.isEnabled(), i == chosen) << i;
        }
    }
};

TEST_F(FrmOptions, OpensFromBothItemsAboveTheMainWindow)
{
    QWidget& window = openFrom("OptionsOptions");
    EXPECT_NE(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(&openFrom("OptionsOptionsForm"), &window);
    tests::press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FrmOptions, BringsTheFrameOfTheChosenTabInAndSendsTheOthersOff)
{
    QWidget& window = openFrom("OptionsOptions");
    auto& tabs = control<QTabBar>(window, "tbsOptions");
    expectFrame(window, 0);
    tests::press(window, Qt::Key_Right);
    expectFrame(window, 1);
    QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(0).center());
    expectFrame(window, 0);
    tests::press(window, Qt::Key_Right);
    window.resize(window.width() + 80, window.height() + 80);
    expectFrame(window, 1);
    tests::click(window, "cmdCancel");
    openFrom("OptionsOptions");
    expectFrame(window, 0);
}

TEST_F(FrmOptions, SaysWhatIsMissingAndClosesWithOkOnly)
{
    QWidget& window = openFrom("OptionsOptions");
    tests::click(window, "cmdApply");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(fake.messages, Texts{"Place code here to set options w/o closing dialog!"});
    tests::click(window, "cmdOK");
    EXPECT_EQ(fake.messages.back(), "Place code here to set options and close dialog!");
    EXPECT_TRUE(window.isVisible());
    fake.dismissMessage();
    EXPECT_FALSE(window.isVisible());
    openFrom("OptionsOptions");
    tests::click(window, "cmdCancel");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(fake.messages.size(), 2U);
}

TEST_F(FrmOptions, ShowsTheDelayAndSetsNothing)
{
    QWidget& window = openFrom("OptionsOptions");
    auto& slider = control<QSlider>(control<QWidget>(window, "OptionsTab"), "GODelaySlider");
    EXPECT_EQ(slider.value(), 2);
    slider.setFocus();
    tests::press(window, Qt::Key_End);
    EXPECT_EQ(slider.value(), 100);
    tests::click(window, "cmdApply");
    tests::click(window, "cmdOK");
    EXPECT_EQ(settings.DelaySeconds, 2);
    EXPECT_EQ(settings.SettingsChangeCount, 0);
    for (const auto seconds : {0, 7}) {
        settings.DelaySeconds = static_cast<std::int16_t>(seconds);
        openFrom("OptionsOptions");
        EXPECT_EQ(slider.value(), seconds);
    }
}

} // namespace
