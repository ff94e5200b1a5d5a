#include "nouns/declension_drill.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QGroupBox>
#include <QWindow>

#include <set>

namespace {

using namespace nouns;
using namespace tests;
using shell::settings;

class DeclensionDrillWindow : public WindowTest {
protected:
    DeclensionDrillWindow()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        start();
    }

    QWidget& openDrill(int row)
    {
        return openRow("DeclensionButton", "DeclinationChoose", row, "Declination");
    }
};

TEST_F(DeclensionDrillWindow, OpensTheParadigmOfEachRow)
{
    for (int row = 0; const int paradigm : {1, 2, 3, 4, 8, 9, 5, 6, 7}) {
        QWidget& drill = openDrill(row++);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigm);
        EXPECT_EQ(label(drill, "HeadingLabel").toStdString(), nounTables.DeclensionHeading[paradigm]);
        EXPECT_EQ(label(drill, "NounLabel").toStdString(), nounTables.NounCaption[paradigm]);
        click(drill, "DeclQuitButton");
        EXPECT_EQ(declensionDrill.DrillParadigm, 0);
    }
}

TEST_F(DeclensionDrillWindow, IsNotOpenedWithoutAChosenRow)
{
    QWidget& chooser = open("DeclensionButton", "DeclinationChoose");
    activate(chooser);
    EXPECT_EQ(settings.ActiveWindowName, "declchoose");
    EXPECT_EQ(focusIn(chooser), "SdeclOK");
    press(chooser, Qt::Key_Return);
    click(chooser, "SdeclOK");
    EXPECT_EQ(shownWindow("Declination"), nullptr);
    clickRow(list(chooser, "DeclinationList"), 4);
    click(chooser, "SdeclOK");
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclension);
    activate(shown("Declination"));
    EXPECT_EQ(settings.ActiveWindowName, "declination");
}

TEST_F(DeclensionDrillWindow, DrawsAnotherNounAfterTenCases)
{
    QWidget& drill = openDrill(0);
    std::set<QString> nouns;
    for (int round = 0; round < 8; ++round) {
        nouns.insert(label(drill, "NounLabel"));
        for (int i = 0; i < CaseCount; ++i) {
            EXPECT_EQ(box(drill, "DeclText", i).text(), "");
            EXPECT_EQ(focusIn(drill), QStringLiteral("DeclText%1").arg(i));
            answer(drill, QString::fromStdString(declensionDrill.ExpectedAnswer));
        }
    }
    EXPECT_EQ(settings.RightCount, 80);
    EXPECT_GT(nouns.size(), 1U);
}

TEST_F(DeclensionDrillWindow, PlacesItsRowsInTheCaseOrder)
{
    constexpr std::array Labels = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};
    for (const auto& [order, cases] :
         {std::pair{"NGDAAb", std::array{0, 1, 2, 3, 4}}, {"NAGDAb", {0, 3, 1, 2, 4}}}) {
        settings.CaseOrder = order;
        QWidget& drill = openDrill(0);
        drill.showNormal();
        drill.adjustSize();
        QApplication::processEvents();
        EXPECT_GE(control<QGroupBox>(drill, "Frame1").mapTo(&drill, QPoint()).y(), 126);
        for (int y = 24; const int inCase : cases) {
            EXPECT_EQ(box(drill, "DeclText", inCase).y(), y) << order << inCase;
            EXPECT_EQ(box(drill, "DeclText", inCase + CasesOfNumber).y(), y) << order << inCase;
            EXPECT_EQ(control<QLabel>(drill, Labels.at(static_cast<std::size_t>(inCase))).y(), y);
            y += 40;
        }
    }
}

TEST_F(DeclensionDrillWindow, HoldsTheFocusAsideWhileAnAnswerIsShown)
{
    QWidget& drill = openDrill(2);
    duringPause([&] { EXPECT_EQ(focusIn(drill), "DDummy"); });
    type(drill, "?");
    EXPECT_EQ(focusIn(drill), "DeclText0");
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, "DeclText", 7), Qt::LeftButton);
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
}

TEST_F(DeclensionDrillWindow, LetsTheHelpBeReadAndClosedBesideIt)
{
    QWidget& drill = openDrill(0);
    EXPECT_EQ(drill.windowModality(), Qt::ApplicationModal);
    press(drill, Qt::Key_F1);
    QWidget& help = shown("Help");
    const QAbstractButton& close = button(help, "Command1");
    const QPoint middle = close.mapTo(&help, close.rect().center());
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier, middle);
    QApplication::processEvents();
    EXPECT_FALSE(help.isVisible());
    answer(drill, QString::fromStdString(declensionDrill.ExpectedAnswer));
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
}

} // namespace
