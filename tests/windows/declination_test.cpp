#include "app/navigation.h"
#include "nouns/declension_drill.h"
#include "nouns/noun_list.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "shell/windows/answer_box.h"
#include "tests/support/window_test.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QWindow>

#include <set>

namespace {

using namespace nouns;
using shell::AnswerBox;
using shell::settings;
using tests::click;
using tests::control;
using tests::press;
using tests::shownWindow;
using tests::type;

constexpr auto Grey = 0xFF808080;
constexpr auto LightGrey = 0xFFC0C0C0;
constexpr auto Red = 0xFFFF0000;
constexpr auto Black = 0xFF000000;

// The window of the declension drill, opened as a learner opens it.
class DeclensionDrillWindow : public tests::WindowTest {
protected:
    DeclensionDrillWindow()
    {
        tests::copySample("verbs.cfg");
        tests::copySample("nouns.cfg");
        navigation.start();
    }

    QWidget& chooser()
    {
        click(*shownWindow("MainMenu"), "DeclensionButton");
        return *shownWindow("DeclinationChoose");
    }

    QWidget& openRow(int row)
    {
        tests::doubleClickRow(control<QListWidget>(chooser(), "DeclinationList"), row);
        return *shownWindow("Declination");
    }

    static AnswerBox& box(QWidget& drill, int index)
    {
        return control<AnswerBox>(drill, QStringLiteral("DeclText%1").arg(index));
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

    static void answerWrong(QWidget& drill)
    {
        type(drill, "x");
        press(drill, Qt::Key_Return);
    }

    std::vector<int> askedInTenRightAnswers(QWidget& drill)
    {
        std::vector<int> asked;
        for (int i = 0; i < CaseCount; ++i) {
            asked.push_back(declensionDrill.CurrentCaseIndex);
            EXPECT_EQ(tests::focusIn(drill), QStringLiteral("DeclText%1").arg(asked.back()));
            answerRight(drill);
        }
        return asked;
    }

    static QString score(QWidget& drill) { return control<QLabel>(drill, "ScoreLabel").text(); }

    app::Navigation navigation;
};

TEST_F(DeclensionDrillWindow, OpensTheParadigmOfEachRow)
{
    constexpr std::array paradigms = {1, 2, 3, 4, 8, 9, 5, 6, 7};
    for (int row = 0; row < ParadigmCount; ++row) {
        QWidget& drill = openRow(row);
        EXPECT_EQ(declensionDrill.DrillParadigm, paradigms.at(static_cast<std::size_t>(row)));
        EXPECT_EQ(control<QLabel>(drill, "HeadingLabel").text().toStdString(),
                  nounTables.DeclensionHeading[declensionDrill.DrillParadigm]);
        EXPECT_EQ(control<QLabel>(drill, "NounLabel").text().toStdString(),
                  nounTables.NounCaption[declensionDrill.DrillParadigm]);
        EXPECT_TRUE(drill.windowModality() == Qt::ApplicationModal);
        click(drill, "DeclQuitButton");
        EXPECT_EQ(declensionDrill.DrillParadigm, 0);
        click(*shownWindow("DeclinationChoose"), "DeclinationCancel");
    }
}

TEST_F(DeclensionDrillWindow, IsNotOpenedWithoutAChosenRow)
{
    QWidget& window = chooser();
    EXPECT_EQ(tests::focusIn(window), "SdeclOK");
    press(window, Qt::Key_Return);
    click(window, "SdeclOK");
    EXPECT_EQ(shownWindow("Declination"), nullptr);
    tests::clickRow(control<QListWidget>(window, "DeclinationList"), 4);
    click(window, "SdeclOK");
    ASSERT_NE(shownWindow("Declination"), nullptr);
    EXPECT_EQ(declensionDrill.DrillParadigm, ThirdDeclension);
}

TEST_F(DeclensionDrillWindow, AsksTheCasesInOrderAndThenAnotherNoun)
{
    QWidget& drill = openRow(0);
    EXPECT_EQ(askedInTenRightAnswers(drill), (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(askedInTenRightAnswers(drill), (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(settings.AnsweredCount, 20);
    EXPECT_EQ(score(drill), " 100% ");
    std::set<QString> nouns;
    for (int round = 0; round < 8; ++round) {
        nouns.insert(control<QLabel>(drill, "NounLabel").text());
        for (int i = 0; i < CaseCount; ++i)
            EXPECT_EQ(box(drill, i).text(), "");
        askedInTenRightAnswers(drill);
    }
    EXPECT_GT(nouns.size(), 1U);
}

TEST_F(DeclensionDrillWindow, AsksTheAccusativeSecondInTheOtherOrder)
{
    settings.CaseOrder = shell::case_order::NAGDAb;
    QWidget& drill = openRow(3);
    EXPECT_EQ(askedInTenRightAnswers(drill), (std::vector{0, 3, 1, 2, 4, 5, 8, 6, 7, 9}));
    EXPECT_EQ(askedInTenRightAnswers(drill), (std::vector{0, 3, 1, 2, 4, 5, 8, 6, 7, 9}));
}

TEST_F(DeclensionDrillWindow, AsksEachCaseOnceInRandomOrderAndThenTheNominative)
{
    settings.QuestionOrder = shell::question_order::Random;
    QWidget& drill = openRow(1);
    for (int round = 0; round < 3; ++round) {
        const std::vector<int> asked = askedInTenRightAnswers(drill);
        EXPECT_EQ(std::set<int>(asked.begin(), asked.end()).size(), 10U);
        EXPECT_FALSE(std::ranges::is_sorted(asked));
        EXPECT_EQ(declensionDrill.CurrentCaseIndex, 0);
    }
}

TEST_F(DeclensionDrillWindow, PlacesItsRowsInTheCaseOrder)
{
    constexpr int rowHeight = 40;
    for (const auto& [order, cases] : std::map<std::string, std::array<int, 5>>{
             {"NGDAAb", {0, 1, 2, 3, 4}}, {"NAGDAb", {0, 3, 1, 2, 4}}}) {
        settings.CaseOrder = order;
        QWidget& drill = openRow(0);
        QApplication::processEvents();
        const std::array labels = {"DeclNom", "DeclGen", "DeclDat", "DeclAcc", "DeclAbl"};
        for (int row = 0; row < CasesOfNumber; ++row) {
            const int inCase = cases.at(static_cast<std::size_t>(row));
            EXPECT_EQ(box(drill, inCase).y(), 24 + row * rowHeight) << order << row;
            EXPECT_EQ(box(drill, inCase + CasesOfNumber).y(), 24 + row * rowHeight);
            EXPECT_EQ(control<QLabel>(drill, labels.at(static_cast<std::size_t>(inCase))).y(),
                      24 + row * rowHeight);
        }
        click(drill, "DeclQuitButton");
        click(*shownWindow("DeclinationChoose"), "DeclinationCancel");
    }
}

TEST_F(DeclensionDrillWindow, GreysTheBoxAnsweredRight)
{
    QWidget& drill = openRow(0);
    answerRight(drill);
    EXPECT_EQ(box(drill, 0).palette().color(QPalette::Base).rgba(), Grey);
    EXPECT_EQ(box(drill, 0).palette().color(QPalette::Text).rgba(), LightGrey);
    EXPECT_EQ(box(drill, 0).text(), answer(0));
}

TEST_F(DeclensionDrillWindow, AsksTheSameCaseAgainAfterAWrongAnswer)
{
    QWidget& drill = openRow(0);
    answerRight(drill);
    answerWrong(drill);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
    EXPECT_EQ(box(drill, 1).text(), "");
    EXPECT_EQ(score(drill), " 50% ");
    answerWrong(drill);
    EXPECT_EQ(settings.AnsweredCount, 3);
    answerRight(drill);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 2);
    EXPECT_EQ(settings.AnsweredCount, 4);
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

TEST_F(DeclensionDrillWindow, ShowsTheAnswerInRedForOnePause)
{
    QWidget& drill = openRow(2);
    int looked = 0;
    const auto process = fake.whileWaiting;
    fake.whileWaiting = [&] {
        ++looked;
        EXPECT_EQ(box(drill, 0).text(), answer(0));
        EXPECT_EQ(box(drill, 0).palette().color(QPalette::Text).rgba(), Red);
        EXPECT_EQ(tests::focusIn(drill), "DDummy");
        process();
    };
    for (const char* const hint : {"/", "?"}) {
        type(drill, hint);
        EXPECT_EQ(box(drill, 0).text(), "");
        EXPECT_EQ(tests::focusIn(drill), "DeclText0");
        EXPECT_EQ(box(drill, 0).palette().color(QPalette::Text).rgba(), Black);
    }
    click(drill, "DeclQuestion");
    EXPECT_EQ(looked, 3);
    EXPECT_EQ(settings.AnsweredCount, 0);
}

TEST_F(DeclensionDrillWindow, SendsTheFocusBackFromAnotherBox)
{
    QWidget& drill = openRow(0);
    declensionDrill.AnswerGiven = platform::FlagTrue;
    QTest::mouseClick(&box(drill, 7), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(tests::focusIn(drill), "DeclText0");
    EXPECT_EQ(declensionDrill.AnswerGiven, platform::FlagFalse);
    type(drill, "a");
    EXPECT_EQ(box(drill, 0).text(), "a");
}

TEST_F(DeclensionDrillWindow, TakesNothingWhileItPauses)
{
    QWidget& drill = openRow(0);
    const auto process = fake.whileWaiting;
    fake.whileWaiting = [&] {
        ASSERT_NE(shownWindow("Bravo"), nullptr);
        QTest::mouseClick(&box(drill, 3), Qt::LeftButton);
        type(drill, "x?/");
        press(drill, Qt::Key_Return);
        click(drill, "Continue");
        click(drill, "DeclQuestion");
        process();
    };
    answerRight(drill);
    EXPECT_EQ(settings.AnsweredCount, 1);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
    EXPECT_EQ(shownWindow("Bravo"), nullptr);
    for (int i = 1; i < CaseCount; ++i)
        EXPECT_EQ(box(drill, i).text(), "");
}

TEST_F(DeclensionDrillWindow, IsLeftAtOnceInAPause)
{
    for (const auto leave :
         {+[](QWidget& drill) { click(drill, "DeclQuitButton"); },
          +[](QWidget& drill) { press(drill, Qt::Key_Escape); }, +[](QWidget& drill) { drill.close(); }}) {
        QWidget& drill = openRow(0);
        const auto process = fake.whileWaiting;
        fake.whileWaiting = [&] {
            leave(drill);
            process();
        };
        answerRight(drill);
        fake.whileWaiting = process;
        EXPECT_EQ(shownWindow("Bravo"), nullptr);
        EXPECT_EQ(shownWindow("Declination"), nullptr);
        EXPECT_EQ(declensionDrill.CurrentCaseIndex, 0);
        press(*shownWindow("DeclinationChoose"), Qt::Key_Escape);
        ASSERT_NE(shownWindow("MainMenu"), nullptr);
    }
}

TEST_F(DeclensionDrillWindow, NotesWhichWindowIsActive)
{
    QWidget& window = chooser();
    QApplication::setActiveWindow(&window);
    EXPECT_EQ(settings.ActiveWindowName, "declchoose");
    tests::doubleClickRow(control<QListWidget>(window, "DeclinationList"), 0);
    QApplication::setActiveWindow(shownWindow("Declination"));
    EXPECT_EQ(settings.ActiveWindowName, "declination");
}

TEST_F(DeclensionDrillWindow, LetsTheHelpBeReadAndClosedBesideIt)
{
    QWidget& drill = openRow(0);
    press(drill, Qt::Key_F1);
    QWidget* const help = shownWindow("Help");
    ASSERT_NE(help, nullptr);
    QApplication::processEvents();
    const auto& close = control<QAbstractButton>(*help, "Command1");
    QTest::mouseClick(help->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      close.mapTo(help, close.rect().center()));
    QApplication::processEvents();
    EXPECT_FALSE(help->isVisible());
    answerRight(drill);
    EXPECT_EQ(declensionDrill.CurrentCaseIndex, 1);
}

TEST_F(DeclensionDrillWindow, SpeaksLatin)
{
    settings.CurrentLanguage = shell::language::Latin;
    QWidget& window = chooser();
    EXPECT_EQ(window.windowTitle(), "Declinationem elige!");
    EXPECT_EQ(control<QListWidget>(window, "DeclinationList").item(5)->text(),
              "Declinatio Tertia (neut., corpus- corporis)");
    tests::doubleClickRow(control<QListWidget>(window, "DeclinationList"), 8);
    QWidget& drill = *shownWindow("Declination");
    EXPECT_EQ(control<QGroupBox>(drill, "Frame2").title(), "numerus pluralis");
    EXPECT_EQ(control<QLabel>(drill, "HelpLabel").text(), "Auxilium=F1");
    EXPECT_EQ(control<QLabel>(drill, "HeadingLabel").text(), "Quinta Declinatio:");
}

} // namespace
