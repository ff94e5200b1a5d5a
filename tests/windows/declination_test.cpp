#include "nouns/declension_drill.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWindow>

#include <set>

namespace {

using namespace nouns;
using shell::settings;
using tests::click;
using tests::control;
using tests::label;
using tests::press;
using tests::shown;
using tests::shownWindow;
using tests::type;

using Cases = std::vector<int>;

// The window of the declension drill, opened as a learner opens it.
class DeclensionDrillWindow : public tests::WindowTest {
protected:
    DeclensionDrillWindow()
    {
        tests::copySample("verbs.cfg");
        tests::copySample("nouns.cfg");
        start();
    }

    QWidget& openChooser()
    {
        if (QWidget* const before = shownWindow("DeclinationChoose"))
            before->close();
        return open("DeclensionButton", "DeclinationChoose");
    }

    QWidget& openRow(int row)
    {
        tests::doubleClickRow(control<QListWidget>(openChooser(), "DeclinationList"), row);
        return shown("Declination");
    }

    static QLineEdit& box(QWidget& drill, int index)
    {
        return control<QLineEdit>(drill, QStringLiteral("DeclText%1").arg(index));
    }

    static QString answer(int index)
    {
        return QString::fromStdString(
            nounTables.NounForms[declensionDrill.DrillParadigm][index + NominativeSingular]);
    }

    static void answerRight(QWidget& drill)
    {
        type(drill, answer(declensionDrill.CurrentCaseIndex));
        press(drill, Qt::Key_Return);
    }

    static Cases askedInTenRightAnswers(QWidget& drill)
    {
        Cases asked;
        for (int i = 0; i < CaseCount; ++i) {
            asked.push_back(declensionDrill.CurrentCaseIndex);
            EXPECT_EQ(tests::focusIn(drill), QStringLiteral("DeclText%1").arg(asked.back()));
            answerRight(drill);
        }
        return asked;
    }
};

TEST_F(DeclensionDrillWindow, OpensTheParadigmOfEachRow)
{
    int row = 0;
    for (const int paradigm : {1, 2, 3, 4, 8, 9, 5, 6, 7}) {
        QWidget& drill = openRow(row++);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigm);
        EXPECT_EQ(label(drill, "HeadingLabel").toStdString(), nounTables.DeclensionHeading[paradigm]);
        EXPECT_EQ(label(drill, "NounLabel").toStdString(), nounTables.NounCaption[paradigm]);
        EXPECT_EQ(drill.windowModality(), Qt::ApplicationModal);
        click(drill, "DeclQuitButton");
        EXPECT_EQ(declensionDrill.DrillParadigm, 0);
    }
}

TEST_F(DeclensionDrillWindow, IsNotOpenedWithoutAChosenRow)
{
    QWidget& chooser = openChooser();
    QApplication::setActiveWindow(&chooser);
    EXPECT_EQ(settings.ActiveWindowName, "declchoose");
    EXPECT_EQ(tests::focusIn(chooser), "SdeclOK");
    press(chooser, Qt::Key_Return);
    click(chooser, "SdeclOK");
    EXPECT_EQ(shownWindow("Declination"), nullptr);
    tests::clickRow(control<QListWidget>(chooser, "DeclinationList"), 4);
    click(chooser, "SdeclOK");
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclension);
    QApplication::setActiveWindow(&shown("Declination"));
    EXPECT_EQ(settings.ActiveWindowName, "declination");
}

TEST_F(DeclensionDrillWindow, AsksTheCasesInOrderAndThenAnotherNoun)
{
    QWidget& drill = openRow(0);
    std::set<QString> nouns;
    for (int round = 0; round < 8; ++round) {
        nouns.insert(label(drill, "NounLabel"));
        for (int i = 0; i < CaseCount; ++i)
            EXPECT_EQ(box(drill, i).text(), "");
        EXPECT_EQ(askedInTenRightAnswers(drill), (Cases{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    }
    EXPECT_EQ(settings.AnsweredCount, 80);
    EXPECT_GT(nouns.size(), 1U);
}

TEST_F(DeclensionDrillWindow, AsksTheAccusativeSecondInTheOtherOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openRow(3);
    for (int round = 0; round < 2; ++round)
        EXPECT_EQ(askedInTenRightAnswers(drill), (Cases{0, 3, 1, 2, 4, 5, 8, 6, 7, 9}));
}

TEST_F(DeclensionDrillWindow, AsksEachCaseOnceInRandomOrderAndThenTheNominative)
{
    settings.QuestionOrder = shell::question_order::Random;
    QWidget& drill = openRow(1);
    for (int round = 0; round < 3; ++round) {
        const Cases asked = askedInTenRightAnswers(drill);
        EXPECT_EQ(std::set<int>(asked.begin(), asked.end()).size(), 10U);
        EXPECT_FALSE(std::ranges::is_sorted(asked));
        EXPECT_EQ(declensionDrill.CurrentCaseIndex, 0);
    }
}

TEST_F(DeclensionDrillWindow, PlacesItsRowsInTheCaseOrder)
{
    const std::array labels = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};
    for (const auto& [order, cases] :
         {std::pair{"NGDAAb", std::array{0, 1, 2, 3, 4}}, {"NAGDAb", {0, 3, 1, 2, 4}}}) {
        settings.CaseOrder = order;
        QWidget& drill = openRow(0);
        drill.showNormal();
        drill.adjustSize();
        QApplication::processEvents();
        EXPECT_GE(control<QGroupBox>(drill, "Frame1").mapTo(&drill, QPoint()).y(), 126);
        int y = 24;
        for (const int inCase : cases) {
            EXPECT_EQ(box(drill, inCase).y(), y) << order << inCase;
            EXPECT_EQ(box(drill, inCase + CasesOfNumber).y(), y) << order << inCase;
            EXPECT_EQ(control<QLabel>(drill, labels.at(static_cast<std::size_t>(inCase))).y(), y);
            y += 40;
        }
        click(drill, "DeclQuitButton");
    }
}

TEST_F(DeclensionDrillWindow, TakesCapitalsAndMissingMarksAsWrong)
{
    settings.ShowVowelLength = platform::FlagTrue;
    QWidget& drill = openRow(0);
    for (const QString& wrong : {answer(0).toUpper(), answer(0) + ' '}) {
        type(drill, wrong);
        click(drill, "Continue");
        EXPECT_EQ(declensionDrill.CurrentCaseIndex, 0);
    }
    for (int i = 0; i < 4; ++i)
        answerRight(drill);
    type(drill, answer(4).remove(':'));
    press(drill, Qt::Key_Return);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 4);
    EXPECT_EQ(settings.RightCount, 4);
}

TEST_F(DeclensionDrillWindow, HoldsTheFocusAsideWhileAnAnswerIsShown)
{
    QWidget& drill = openRow(2);
    duringPause([&] { EXPECT_EQ(tests::focusIn(drill), "DDummy"); });
    type(drill, "?");
    EXPECT_EQ(tests::focusIn(drill), "DeclText0");
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, 7), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
}

TEST_F(DeclensionDrillWindow, LetsTheHelpBeReadAndClosedBesideIt)
{
    QWidget& drill = openRow(0);
    press(drill, Qt::Key_F1);
    QWidget& help = shown("Help");
    const auto& close = control<QAbstractButton>(help, "Command1");
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      close.mapTo(&help, close.rect().center()));
    QApplication::processEvents();
    EXPECT_FALSE(help.isVisible());
    answerRight(drill);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
}

TEST_F(DeclensionDrillWindow, SpeaksLatin)
{
    settings.CurrentLanguage = shell::language::Latin;
    QWidget& drill = openRow(8);
    EXPECT_EQ(control<QGroupBox>(drill, "Frame2").title(), "numerus pluralis");
    EXPECT_EQ(label(drill, "HelpLabel"), "Auxilium=F1");
    EXPECT_EQ(label(drill, "HeadingLabel"), "Quinta Declinatio:");
    drill.close();
    EXPECT_EQ(shown("DeclinationChoose").windowTitle(), "Declinationem elige!");
}

} // namespace
