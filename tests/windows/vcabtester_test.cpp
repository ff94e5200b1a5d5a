#include "app/navigation.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <utility>

namespace {

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

    // Starts the program and presses the vocabulary button.
    QWidget& open()
    {
        navigation.start();
        click(*tests::shownWindow("MainMenu"), "VocabularyButton");
        return *tests::shownWindow("Vcabtester");
    }

    static QString question(QWidget& tester) { return control<QLabel>(tester, "VQuestion").text(); }
    static QString hint(QWidget& tester) { return control<QLabel>(tester, "VHint").text(); }
    static QString answer(QWidget& tester) { return control<QLineEdit>(tester, "VcabAnswer").text(); }
    static QColor answerColour(QWidget& tester)
    {
        return control<QLineEdit>(tester, "VcabAnswer").palette().color(QPalette::Text);
    }
    static void choose(QWidget& tester, const QString& item) { control<QAction>(tester, item).trigger(); }

    static void give(QWidget& tester, const QString& text)
    {
        type(tester, text);
        press(tester, Qt::Key_Return);
    }

    // Does something once, in the middle of the next pause.
    void duringPause(std::function<void()> action)
    {
        once_ = std::move(action);
        fake.whileWaiting = [this] {
            QApplication::processEvents();
            if (const auto todo = std::exchange(once_, nullptr))
                todo();
        };
    }

    app::Navigation navigation;

private:
    std::function<void()> once_;
};

TEST_F(VcabtesterWindow, ShowsTheFirstWordAndItsHintAndTakesTheAnswer)
{
    QWidget& tester = open();
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
    QWidget& tester = open();
    duringPause([] { EXPECT_NE(tests::shownWindow("Bravo"), nullptr); });
    give(tester, "rose");
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

TEST_F(VcabtesterWindow, AsksTheSameWordAgainAfterAWrongAnswer)
{
    QWidget& tester = open();
    duringPause([] { EXPECT_NE(tests::shownWindow("Wrong"), nullptr); });
    give(tester, "Rose");
    EXPECT_EQ(question(tester), "rosa");
    EXPECT_EQ(answer(tester), "");
    EXPECT_EQ(tests::focusIn(tester), "VcabAnswer");
    EXPECT_EQ(vocabularyTester.Misses[1], 1);
    EXPECT_EQ(shell::settings.AnsweredCount, 1);
    give(tester, "rose");
    EXPECT_EQ(question(tester), "Ro:ma");
}

TEST_F(VcabtesterWindow, ShowsTheAnswerInRedForOnePause)
{
    QWidget& tester = open();
    const std::vector<std::function<void()>> wishes = {
        [&] { give(tester, "?"); },
        [&] { QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton); }};
    for (const auto& wish : wishes) {
        duringPause([&] {
            EXPECT_EQ(answer(tester), "rose");
            EXPECT_EQ(answerColour(tester), QColor(255, 0, 0));
        });
        wish();
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
    QWidget& tester = open();
    give(tester, "who?/what?");
    EXPECT_EQ(shell::settings.RightCount, 1);
}

TEST_F(VcabtesterWindow, JudgesNothingDuringAPause)
{
    QWidget& tester = open();
    type(tester, "rose");
    duringPause([&] {
        give(tester, "rose");
        click(tester, "VcabtesterOK");
        QTest::mouseDClick(&control<QLabel>(tester, "VQuestion"), Qt::LeftButton);
        choose(tester, "VcabtesterOptionsPromptLatin");
        EXPECT_EQ(question(tester), "rosa");
    });
    press(tester, Qt::Key_Return);
    EXPECT_EQ(shell::settings.AnsweredCount, 1);
    EXPECT_EQ(vocabularyTester.RightAnswers[1], 1);
    EXPECT_EQ(question(tester), "Rome, Italy");
    EXPECT_EQ(fake.waits, 1);
}

TEST_F(VcabtesterWindow, IsLeftAtOnceDuringAPause)
{
    for (const char* const answer : {"rose", "tulip", "?"}) {
        QWidget& tester = open();
        type(tester, answer);
        duringPause([&] {
            press(tester, Qt::Key_Escape);
            EXPECT_EQ(tests::shownWindow("Bravo"), nullptr);
            EXPECT_EQ(tests::shownWindow("Wrong"), nullptr);
            EXPECT_NE(tests::shownWindow("MainMenu"), nullptr);
        });
        press(tester, Qt::Key_Return);
        EXPECT_FALSE(tester.isVisible());
        EXPECT_EQ(vocabularyList.CurrentWord, 1);
        EXPECT_EQ(vocabularyTester.Misses[1], 0);
    }
}

TEST_F(VcabtesterWindow, StartsAfreshEachTimeItIsOpened)
{
    QWidget& tester = open();
    choose(tester, "VcabtesterOptionsOrderRandom");
    choose(tester, "VcabtesterOptionsPromptLatin");
    give(tester, "wrong");
    EXPECT_EQ(vocabularyTester.Misses[1], 1);
    click(tester, "VcabtesterCancel");
    click(*tests::shownWindow("MainMenu"), "VocabularyButton");
    EXPECT_EQ(question(tester), "rosa");
    EXPECT_EQ(vocabularyTester.Order, "sequential");
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsOrderSequential").isChecked());
    EXPECT_TRUE(control<QAction>(tester, "VcabtesterOptionsPromptEnglish").isChecked());
    EXPECT_EQ(vocabularyTester.Misses[1], 0);
}

TEST_F(VcabtesterWindow, PassesOverOmittedWordsAndWaitsWhenNoneIsLeft)
{
    QWidget& tester = open();
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
    QWidget& tester = open();
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

TEST_F(VcabtesterWindow, EndsTheProgramWithoutSavingOnALearnedWordAtRandom)
{
    tests::writeFile("vr-vcab.lst", "rosa,rose,f.");
    QWidget& tester = open();
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
    QWidget& tester = open();
    choose(tester, "VcabtesterOptionsPromptLatin");
    EXPECT_EQ(question(tester), "rose");
    give(tester, "rosa");
    EXPECT_EQ(question(tester), "Rome, Italy");
    choose(tester, "VcabtesterOptionsPromptEnglish");
    EXPECT_EQ(question(tester), "Ro:ma");
}

TEST_F(VcabtesterWindow, OpensAnotherListWithoutCounts)
{
    tests::writeFile("b.voc", "mu:s,mouse,m.\r\n");
    tests::writeFile("notes.doc", "no list");
    QWidget& tester = open();
    give(tester, "wrong");
    choose(tester, "VcabTesterFileOpen");
    EXPECT_FALSE(tester.isVisible());
    QWidget& loader = *tests::shownWindow("VcabLoader");
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
    QWidget& tester = open();
    give(tester, "rose");
    choose(tester, "VcabTesterFileOpen");
    QWidget& loader = *tests::shownWindow("VcabLoader");
    tests::doubleClickRow(control<QListWidget>(loader, "VcabFile"), 0);
    EXPECT_EQ(fake.messages, std::vector<std::string>{"many.txt: the file holds more than 300 words"});
    EXPECT_TRUE(loader.isVisible());
    press(loader, Qt::Key_Escape);
    EXPECT_EQ(question(tester), "Ro:ma");
    give(tester, "Rome, Italy");
    EXPECT_EQ(question(tester), "re:x");
}

TEST_F(VcabtesterWindow, StandsInEveryLanguage)
{
    for (const auto language : {"English", "French", "Italian", "German", "Spanish", "Latin", "Norwegian"}) {
        shell::settings.CurrentLanguage = language;
        QWidget& tester = open();
        shell::settings.CurrentLanguage = language;
        choose(tester, "VcabTesterFileOpen");
        press(*tests::shownWindow("VcabLoader"), Qt::Key_Escape);
        EXPECT_FALSE(control<QAbstractButton>(tester, "VcabTestOmit").text().isEmpty()) << language;
        press(tester, Qt::Key_Escape);
    }
}

} // namespace
