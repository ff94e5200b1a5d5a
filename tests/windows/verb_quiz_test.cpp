#include "shell/settings.h"
#include "shell/settings_file.h"
#include "tests/support/window_test.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <array>
#include <initializer_list>

namespace {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using tests::shown;
using verbdrills::verbQuiz;

constexpr int Velle = 6;
constexpr int Ferre = 7;

class VerbQuizWindows : public tests::WindowTest {
protected:
    // The quiz as it opens from the main window, with the settings of a first start.
    QWidget& openQuiz()
    {
        tests::copySample("verbs.cfg");
        start();
        return openAgain();
    }

    QWidget& openAgain() { return open("QuizButton", "Probatio"); }

    static QWidget& quiz() { return shown("Probatio"); }
    static void clickIn(const char* button) { tests::click(quiz(), button); }
    static QString text(const char* label) { return tests::label(quiz(), label); }
    static QListWidget& list(const char* name) { return tests::control<QListWidget>(quiz(), name); }
    static QRadioButton& option(const char* name) { return tests::control<QRadioButton>(quiz(), name); }

    static void clickOption(const char* name)
    {
        QRadioButton& button = option(name);
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button.height() / 2));
    }

    // Worked out from the form number alone: six to a tense, three to a number.
    static void chooseRightAnswer()
    {
        const int form = verbQuiz.QuizRow - 1;
        tests::clickRow(list("QuizConjList"), verbQuiz.QuizConjugation - 1);
        tests::clickRow(list("QuizTenseList"), form / 6);
        clickOption(
            std::array{"QuizFirst", "QuizSecond", "QuizThird"}.at(static_cast<std::size_t>(form % 3)));
        clickOption(form % 6 < 3 ? "QuizSing" : "QuizPlural");
    }

    static void setTicks(const char* boxes, int count, std::initializer_list<int> ticked)
    {
        for (int i = 0; i < count; ++i)
            tick(boxes, i, std::find(ticked.begin(), ticked.end(), i) != ticked.end());
    }

    static QCheckBox& box(const char* boxes, int index)
    {
        return tests::control<QCheckBox>(shown("QuizInclude"), QLatin1String(boxes) + QString::number(index));
    }

    static void tick(const char* boxes, int index, bool ticked)
    {
        QCheckBox& clicked = box(boxes, index);
        if (clicked.isChecked() != ticked)
            QTest::mouseClick(&clicked, Qt::LeftButton, Qt::NoModifier, QPoint(8, clicked.height() / 2));
    }

    static void include(std::initializer_list<int> classes, std::initializer_list<int> tenses)
    {
        clickIn("QuizOptions");
        setTicks("InclConj", 8, classes);
        setTicks("InclTense", 21, tenses);
        tests::click(shown("QuizInclude"), "InclQuiz");
    }

    static void expectEmptyAnswer()
    {
        EXPECT_TRUE(list("QuizConjList").selectedItems().isEmpty());
        EXPECT_TRUE(list("QuizTenseList").selectedItems().isEmpty());
        EXPECT_TRUE(option("QuizFirst").isChecked());
        EXPECT_TRUE(option("QuizSing").isChecked());
        EXPECT_EQ(text("QuizYourAnswer"), "");
        EXPECT_EQ(text("QuizHeading"), "");
        EXPECT_EQ(text("QuizCorrect"), "");
    }
};

TEST_F(VerbQuizWindows, OpensWithAFormAndAnEmptyAnswer)
{
    openQuiz();
    EXPECT_EQ(tests::shownWindow("MainMenu"), nullptr);
    EXPECT_EQ(settings.ActiveWindowName, "quiz");
    EXPECT_EQ(settings.ExerciseType, "Quiz");
    EXPECT_FALSE(text("QuizItem").isEmpty());
    EXPECT_EQ(text("QuizBaseForm"), "");
    EXPECT_EQ(list("QuizConjList").count(), 8);
    EXPECT_EQ(list("QuizTenseList").count(), 21);
    EXPECT_EQ(fake.beeps, 2);
    EXPECT_EQ(tests::focusIn(quiz()), "QuizConjList");
    expectEmptyAnswer();
}

TEST_F(VerbQuizWindows, RightAnswerAsksAnotherFormAndEmptiesTheAnswer)
{
    openQuiz();
    include({0, 5}, {0, 1, 2});
    for (int answer = 1; answer <= 12; ++answer) {
        chooseRightAnswer();
        clickIn("QuizOK");
        EXPECT_EQ(settings.RightCount, answer);
        EXPECT_EQ(settings.AnsweredCount, answer);
        EXPECT_EQ(fake.beeps, 2 * (answer + 1));
        EXPECT_TRUE(verbQuiz.formIsAsked);
        EXPECT_EQ(tests::shownWindow("Bravo"), nullptr);
        expectEmptyAnswer();
    }
}

TEST_F(VerbQuizWindows, WrongAnswerAsksTheSameFormAgain)
{
    openQuiz();
    const QString form = text("QuizItem");
    chooseRightAnswer();
    tests::clickRow(list("QuizConjList"), Ferre);
    clickIn("QuizOK");
    EXPECT_EQ(settings.AnsweredCount, 1);
    EXPECT_EQ(settings.RightCount, 0);
    EXPECT_EQ(text("QuizItem"), form);
    EXPECT_EQ(fake.beeps, 2);
    EXPECT_EQ(list("QuizConjList").currentRow(), Ferre);
    tests::clickRow(list("QuizConjList"), 0);
    clickIn("QuizOK");
    EXPECT_EQ(settings.RightCount, 1);
}

TEST_F(VerbQuizWindows, IsAnsweredFromTheKeyboard)
{
    openQuiz();
    verbQuiz.QuizRow = 11;
    verbdrills::identifyForm();
    for (const auto& [control, steps] :
         {std::pair{"QuizConjList", 1}, {"QuizTenseList", 2}, {"QuizFirst", 1}, {"QuizSing", 1}}) {
        EXPECT_EQ(tests::focusIn(quiz()), control);
        for (int i = 0; i < steps; ++i)
            tests::press(quiz(), Qt::Key_Down);
        if (control != std::string_view("QuizSing"))
            tests::press(quiz(), Qt::Key_Tab);
    }
    EXPECT_EQ(text("QuizYourAnswer"), "2nd Person Plur, First Conjugation, Imperfect Indicative");
    tests::press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(settings.AnsweredCount, 1);
}

TEST_F(VerbQuizWindows, LeavingDuringThePauseForTheOptionsWorksAtOnce)
{
    openQuiz();
    chooseRightAnswer();
    duringPause([] { clickIn("QuizOptions"); });
    clickIn("QuizOK");
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);
    EXPECT_EQ(tests::shownWindow("Bravo"), nullptr);
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(fake.beeps, 2);
    tests::click(shown("QuizInclude"), "InclCancel");
    EXPECT_EQ(fake.beeps, 4);
    expectEmptyAnswer();
    EXPECT_TRUE(verbQuiz.formIsAsked);
}

TEST_F(VerbQuizWindows, SkippingAsksAnotherFormAndDoesNotCount)
{
    openQuiz();
    chooseRightAnswer();
    clickOption("QuizThird");
    clickOption("QuizPlural");
    clickIn("QuizQuestion");
    clickIn("QuizSkip");
    EXPECT_EQ(fake.beeps, 4);
    EXPECT_EQ(settings.AnsweredCount, 0);
    expectEmptyAnswer();
}

TEST_F(VerbQuizWindows, QuestionShowsBothAnswersInTheLanguage)
{
    const std::array<const char*, 4> languages[] = {
        {"French", "Correct Answer", "3rd Person Sing, Third Conjugation (-io), Perfect Indicative",
         "1st Person Plur, Velle, Passive Future Perfect Indicative"},
        {"German", "Korrekte Antwort", "3. Person Sing., 3. Konjugation (-io), Perfekt Indikativ",
         "1. Person Plur., Velle (wollen), Passiv Futur Perfekt Indikativ"},
        {"Latin", "Responsum rectum", "Persona iii Sing., Conjugatio III (-io), Perfectum Indicativum",
         "Persona i Plur., Velle, Passivum Futurum Perfectum Indicativum"}};
    openQuiz();
    for (const auto& [language, heading, correct, yours] : languages) {
        clickIn("QuizCancel");
        settings.CurrentLanguage = language;
        openAgain();
        verbQuiz.QuizConjugation = verbs::ThirdIoConjugation;
        verbQuiz.QuizRow = 21;
        verbdrills::identifyForm();
        tests::clickRow(list("QuizConjList"), Velle);
        tests::clickRow(list("QuizTenseList"), 16);
        clickOption("QuizPlural");
        clickIn("QuizQuestion");
        EXPECT_EQ(text("QuizHeading"), heading);
        EXPECT_EQ(text("QuizCorrect"), correct);
        EXPECT_EQ(text("QuizYourAnswer"), yours);
        EXPECT_EQ(settings.AnsweredCount, 0);
    }
}

TEST_F(VerbQuizWindows, OptionsShowWhatIsIncludedAndComeBackToTheForm)
{
    openQuiz();
    const QString form = text("QuizItem");
    clickIn("QuizOptions");
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);
    EXPECT_EQ(settings.ActiveWindowName, "quizinclude");
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(box("InclConj", i).isChecked(), i == 0);
    for (int t = 0; t < 21; ++t)
        EXPECT_EQ(box("InclTense", t).isChecked(), t == 0);
    tests::press(shown("QuizInclude"), Qt::Key_Escape);
    EXPECT_EQ(text("QuizItem"), form);
    EXPECT_EQ(fake.beeps, 2);
}

TEST_F(VerbQuizWindows, ClassesAreStoredAtOnceAndTensesWithThem)
{
    openQuiz();
    clickIn("QuizOptions");
    tick("InclTense", 4, true);
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagFalse);
    tick("InclConj", 3, true);
    EXPECT_EQ(settings.QuizConjInclude[3], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagTrue);
    tick("InclTense", 5, true);
    tests::click(shown("QuizInclude"), "InclCancel");
    EXPECT_EQ(settings.QuizTenseInclude[5], FlagFalse);
    EXPECT_NE(tests::shownWindow("Probatio"), nullptr);
}

TEST_F(VerbQuizWindows, AllAndNoneTickTheBoxesWithoutStoring)
{
    openQuiz();
    clickIn("QuizOptions");
    tests::click(shown("QuizInclude"), "InclInclude");
    EXPECT_TRUE(box("InclConj", Ferre).isChecked());
    EXPECT_TRUE(box("InclTense", 20).isChecked());
    EXPECT_EQ(settings.QuizConjInclude[Ferre], FlagFalse);
    tests::click(shown("QuizInclude"), "InclClear");
    EXPECT_FALSE(box("InclConj", 0).isChecked());
    EXPECT_FALSE(box("InclTense", 0).isChecked());
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    box("InclTense", 0).setFocus();
    tests::press(shown("QuizInclude"), Qt::Key_Return);
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[0], FlagTrue);
    EXPECT_NE(tests::shownWindow("Probatio"), nullptr);
}

// The passive of esse does not exist: the quiz asks for more to choose from, and can be left.
TEST_F(VerbQuizWindows, NothingToAskLeadsToTheChoice)
{
    openQuiz();
    include({5}, {11, 12});
    clickIn("QuizSkip");
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);
    EXPECT_TRUE(tests::control<QLabel>(shown("QuizInclude"), "InclNote").isVisible());
    tests::click(shown("QuizInclude"), "InclQuiz");
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);

    tests::click(shown("QuizInclude"), "InclCancel");
    EXPECT_EQ(text("QuizItem"), "");
    EXPECT_FALSE(tests::control<QPushButton>(quiz(), "QuizOK").isEnabled());
    tests::press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.AnsweredCount, 0);

    include({5}, {0, 1});
    EXPECT_FALSE(text("QuizItem").isEmpty());
    EXPECT_TRUE(tests::control<QPushButton>(quiz(), "QuizOK").isEnabled());
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::Esse);
}

TEST_F(VerbQuizWindows, RightAnswerAfterWhichNothingCanBeAskedLeadsToTheChoice)
{
    openQuiz();
    include({5}, {11, 12});
    chooseRightAnswer();
    clickIn("QuizOK");
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(tests::shownWindow("Bravo"), nullptr);
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);
    EXPECT_NE(tests::shownWindow("QuizInclude"), nullptr);
}

TEST_F(VerbQuizWindows, AQuizThatStartsWithFerreAloneShowsTheChoice)
{
    tests::copySample("verbs.cfg");
    settings.QuizConjInclude[Ferre] = FlagTrue;
    settings.QuizTenseInclude[3] = FlagTrue;
    ASSERT_FALSE(shell::writeSettings(shell::SettingsFileName));
    start();
    tests::click(shown("MainMenu"), "QuizButton");
    EXPECT_EQ(tests::shownWindow("Probatio"), nullptr);
    tick("InclConj", 1, true);
    tests::click(shown("QuizInclude"), "InclQuiz");
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::SecondConjugation);
    EXPECT_FALSE(text("QuizItem").isEmpty());
}

} // namespace
