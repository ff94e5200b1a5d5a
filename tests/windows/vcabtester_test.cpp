#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <tuple>

namespace {

using tests::choose;
using tests::click;
using tests::control;
using tests::press;
using tests::type;
using vocabulary::vocabularyList;
using vocabulary::vocabularyTester;

constexpr auto ThreeWords = "rosa,rose,f.\r\nRo:ma,Rome> Italy,Romae> f.\r\nre:x,king,m.\r\n";

class VcabtesterWindow : public tests::WindowTest {
protected:
    VcabtesterWindow() { tests::writeFile("vr-vcab.lst", ThreeWords); }

    QWidget& openTester() { return open("VocabularyButton", "Vcabtester"); }

    static QString question(QWidget& tester) { return tests::label(tester, "VQuestion"); }
    static QString hint(QWidget& tester) { return tests::label(tester, "VHint"); }
    static QString answer(QWidget& tester) { return control<QLineEdit>(tester, "VcabAnswer").text(); }
    static QColor answerColour(QWidget& tester)
    {
        return control<QLineEdit>(tester, "VcabAnswer").palette().color(QPalette::Text);
    }

    static void give(QWidget& tester, const QString& text)
    {
        type(tester, text);
        press(tester, Qt::Key_Return);
    }
};

TEST_F(VcabtesterWindow, ShowsTheFirstWordAndItsHintAndTakesTheAnswer)
{
    QWidget& tester = openTester();
    EXPECT_EQ(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(shell::settings.ExerciseType, "Vcabtester");
    EXPECT_EQ(question(tester), "rosa");
    EXPECT_EQ(hint(tester), "f.");
    EXPECT_EQ(tests::focusIn(tester), "VcabAnswer");
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsOrderSequential").isChecked());
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsPromptEnglish").isChecked());
}

TEST_F(VcabtesterWindow, GoesOnAfterARightAnswer)
{
    QWidget& tester = openTester();
    duringPause([&] {
        EXPECT_NE(tests::shownWindow("Bravo"), nullptr);
        press(tester, Qt::Key_Return);
        click(tester, "VcabtesterOK");
    });
    give(tester, "rose");
    EXPECT_EQ(vocabularyTester.RightAnswers[1], 1);
    EXPECT_EQ(tests::shownWindow("Bravo"), nullptr);
    EXPECT_EQ(question(tester), "Ro:ma");
    EXPECT_EQ(hint(tester), "Romae, f.");
    EXPECT_EQ(answer(tester), "");
    type(tester, "Rome, Italy");
    click(tester, "VcabtesterOK");
    EXPECT_EQ(question(tester), "re:x");
    EXPECT_EQ(tests::focusIn(tester), "VcabAnswer");
    EXPECT_EQ(shell::settings.RightCount, 2);
    EXPECT_EQ(fake.waits, 2);
}

TEST_F(VcabtesterWindow, ShowsTheAnswerInRedForOnePause)
{
    QWidget& tester = openTester();
    for (const bool byMouse : {false, true}) {
        duringPause([&] {
            EXPECT_EQ(answer(tester), "rose");
            EXPECT_EQ(answerColour(tester), QColor(255, 0, 0));
            choose(tester, "VcabtesterOptionsPromptLatin");
            EXPECT_EQ(question(tester), "rosa");
            choose(tester, "VcabtesterOptionsPromptEnglish");
            give(tester, "rose");
        });
        if (byMouse)
            QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton);
        else
            give(tester, "?");
        EXPECT_EQ(answer(tester), "");
        EXPECT_EQ(answerColour(tester), QColor(0, 0, 0));
        EXPECT_EQ(question(tester), "rosa");
    }
    EXPECT_EQ(fake.waits, 2);
    EXPECT_EQ(shell::settings.AnsweredCount, 0);
}

TEST_F(VcabtesterWindow, TakesSlashesAndQuestionMarksAsPartOfAnAnswer)
{
    tests::writeFile("vr-vcab.lst", "quis,who?/what?,pron.");
    QWidget& tester = openTester();
    give(tester, "who?/what?");
    EXPECT_EQ(shell::settings.RightCount, 1);
}

TEST_F(VcabtesterWindow, StartsAfreshEachTimeItIsOpened)
{
    QWidget& tester = openTester();
    choose(tester, "VcabtesterOptionsOrderRandom");
    choose(tester, "VcabtesterOptionsPromptLatin");
    give(tester, "wrong");
    EXPECT_EQ(vocabularyTester.Misses[1], 1);
    click(tester, "VcabtesterCancel");
    click(tests::shown("MainMenu"), "VocabularyButton");
    EXPECT_EQ(question(tester), "rosa");
    EXPECT_EQ(vocabularyTester.Order, "sequential");
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsOrderSequential").isChecked());
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsPromptEnglish").isChecked());
    EXPECT_EQ(vocabularyTester.Misses[1], 0);
}

TEST_F(VcabtesterWindow, PassesOverOmittedWordsAndWaitsWhenNoneIsLeft)
{
    QWidget& tester = openTester();
    auto& omit = control<QCheckBox>(tester, "VcabTestOmit");
    for (const QString meaning : {"rose", "Rome, Italy", "king"}) {
        EXPECT_FALSE(omit.isChecked());
        click(tester, "VcabTestOmit");
        give(tester, meaning);
    }
    EXPECT_EQ(question(tester), "There is no word to ask.");
    EXPECT_EQ(hint(tester), "");
    EXPECT_TRUE(omit.isChecked());
    give(tester, "?");
    give(tester, "anything");
    EXPECT_EQ(shell::settings.AnsweredCount, 3);
    click(tester, "VcabTestOmit");
    EXPECT_EQ(question(tester), "re:x");
    give(tester, "king");
    EXPECT_EQ(question(tester), "re:x");
}

TEST_F(VcabtesterWindow, SaysThatThereIsNoWordWithoutADefaultList)
{
    std::filesystem::remove("vr-vcab.lst");
    QWidget& tester = openTester();
    EXPECT_EQ(question(tester), "There is no word to ask.");
    EXPECT_TRUE(fake.messages.empty());
    give(tester, "");
    QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton);
    EXPECT_EQ(shell::settings.AnsweredCount, 0);
    EXPECT_FALSE(fake.exitStatus);
    choose(tester, "VcabtesterOptionsOrderRandom");
    EXPECT_FALSE(fake.exitStatus);
    give(tester, "");
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(VcabtesterWindow, SaysWhyTheDefaultListCannotBeRead)
{
    std::filesystem::remove("vr-vcab.lst");
    std::filesystem::create_symlink("vr-vcab.lst", "vr-vcab.lst");
    EXPECT_EQ(question(openTester()), "There is no word to ask.");
    EXPECT_EQ(fake.messages, std::vector<std::string>{"vr-vcab.lst: Too many levels of symbolic links"});
}

TEST_F(VcabtesterWindow, EndsTheProgramWithoutSavingOnALearnedWordAtRandom)
{
    tests::writeFile("vr-vcab.lst", "rosa,rose,f.");
    QWidget& tester = openTester();
    choose(tester, "VcabtesterOptionsOrderRandom");
    for (int i = 1; i <= 6; ++i) {
        EXPECT_FALSE(fake.exitStatus) << i;
        give(tester, "rose");
    }
    EXPECT_EQ(fake.exitStatus, 0);
    EXPECT_FALSE(std::filesystem::exists("morvanti.ini"));
}

TEST_F(VcabtesterWindow, AsksForTheOtherSideAsSoonAsItIsChosen)
{
    QWidget& tester = openTester();
    choose(tester, "VcabtesterOptionsPromptLatin");
    EXPECT_EQ(question(tester), "rose");
    give(tester, "rosa");
    EXPECT_EQ(question(tester), "Rome, Italy");
    choose(tester, "VcabtesterOptionsPromptEnglish");
    EXPECT_EQ(question(tester), "Ro:ma");
}

TEST_F(VcabtesterWindow, SpeaksTheLanguageThatIsSet)
{
    std::filesystem::remove("vr-vcab.lst");
    start();
    for (const auto& [language, title, noWord, quit] :
         {std::tuple{"German", "Wortschatz", "Es gibt kein Wort zum Abfragen.", "&Beenden"},
          {"Latin", "Verba nostra", "Nullum verbum restat.", "R&everte!"},
          {"Italian", "Vocabulary", "There is no word to ask.", "Q&uit"},
          {"English", "Vocabulary", "There is no word to ask.", "Q&uit"}}) {
        shell::settings.CurrentLanguage = language;
        QWidget& tester = openTester();
        EXPECT_EQ(tester.windowTitle(), title);
        EXPECT_EQ(question(tester), noWord);
        EXPECT_EQ(control<QAbstractButton>(tester, "VcabtesterCancel").text(), quit);
        click(tester, "VcabtesterCancel");
    }
}

TEST_F(VcabtesterWindow, OpensAnotherListWithoutCounts)
{
    tests::writeFile("b.voc", "mu:s,mouse,m.\r\n");
    tests::writeFile("notes.doc", "no list");
    QWidget& tester = openTester();
    give(tester, "wrong");
    choose(tester, "VcabTesterFileOpen");
    EXPECT_FALSE(tester.isVisible());
    QWidget& loader = tests::shown("VcabLoader");
    auto& files = control<QListWidget>(loader, "VcabFile");
    ASSERT_EQ(files.count(), 2);
    EXPECT_FALSE(control<QAbstractButton>(loader, "VcabLoaderOpen").isEnabled());
    tests::clickRow(files, 0);
    click(loader, "VcabLoaderOpen");
    EXPECT_FALSE(loader.isVisible());
    EXPECT_EQ(question(tester), "mu:s");
    EXPECT_EQ(vocabularyList.CurrentWord, 1);
    EXPECT_EQ(vocabularyTester.Misses[1], 0);
    give(tester, "mouse");
    EXPECT_EQ(shell::settings.RightCount, 1);
}

TEST_F(VcabtesterWindow, KeepsItsQuestionWhereNoOtherListIsOpened)
{
    QString many;
    for (int i = 0; i < 301; ++i)
        many += "a,b,c\n";
    tests::writeFile("many.txt", many.toStdString());
    QWidget& tester = openTester();
    give(tester, "rose");
    choose(tester, "VcabTesterFileOpen");
    QWidget& loader = tests::shown("VcabLoader");
    tests::doubleClickRow(control<QListWidget>(loader, "VcabFile"), 0);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"many.txt: the file holds more than 300 words"});
    EXPECT_TRUE(loader.isVisible());
    press(loader, Qt::Key_Escape);
    EXPECT_EQ(question(tester), "Ro:ma");
    give(tester, "Rome, Italy");
    EXPECT_EQ(question(tester), "re:x");
}

} // namespace
