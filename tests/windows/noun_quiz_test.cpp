#include "app/navigation.h"
#include "nouns/noun_quiz.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "shell/windows/main_menu.h"
#include "tests/support/window_test.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>

namespace {

using namespace nouns;
using tests::click;
using tests::control;
using tests::press;
using tests::shownWindow;

constexpr std::array Checks = {"NominativeSingCheck", "GenitiveSingCheck", "DativeSingCheck",
                               "AccusativeSingCheck", "AblativeSingCheck", "NominativePluralCheck",
                               "GenitivePluralCheck", "DativePluralCheck", "AccusativePluralCheck",
                               "AblativePluralCheck"};

class NounQuizWindow : public tests::WindowTest {
protected:
    NounQuizWindow()
    {
        tests::copySample("verbs.cfg");
        tests::copySample("nouns.cfg");
        navigation.start();
    }

    QWidget& open()
    {
        control<QAction>(*shownWindow("MainMenu"), "FileNounQuiz").trigger();
        return *shownWindow("NounQuiz");
    }

    static QString text(QWidget& quiz, const char* label) { return control<QLabel>(quiz, label).text(); }

    static void tickRightCases(QWidget& quiz)
    {
        for (int i = 0; i < CaseCount; ++i)
            if (nounQuestion.QuizRightCases[i] == platform::FlagTrue)
                click(quiz, Checks.at(static_cast<std::size_t>(i)));
    }

    static int ticked(QWidget& quiz)
    {
        return static_cast<int>(std::ranges::count_if(
            Checks, [&](const char* name) { return control<QCheckBox>(quiz, name).isChecked(); }));
    }

    // What the window says while it pauses.
    void watch(QWidget& quiz, QString& verdict, QString& answer)
    {
        fake.whileWaiting = [&, process = fake.whileWaiting] {
            verdict = text(quiz, "NounQuizVerdict");
            answer = text(quiz, "NounRightAnswer");
            process();
        };
    }

    app::Navigation navigation;
};

TEST_F(NounQuizWindow, ShowsAFormItsNounAndTheIndexes)
{
    QWidget& quiz = open();
    for (int questions = 0; questions < 20; ++questions) {
        const int paradigm = nounQuestion.QuizParadigmIndex + 1;
        EXPECT_EQ(text(quiz, "NounQuizForm").toStdString(),
                  nounTables.NounForms[paradigm][nounQuestion.QuizCaseIndex + 1]);
        EXPECT_EQ(text(quiz, "NounQuizInfo").toStdString(), nounTables.NounCaption[paradigm]);
        EXPECT_EQ(text(quiz, "NounQuizIndices").toStdString(), drawnIndexes());
        EXPECT_EQ(text(quiz, "NounRightAnswer"), "");
        click(quiz, "NQSkip");
    }
}

TEST_F(NounQuizWindow, JudgesTheTicksAndAsksAnew)
{
    QWidget& quiz = open();
    QString verdict;
    QString answer;
    watch(quiz, verdict, answer);
    for (int questions = 0; questions < 20; ++questions) {
        const std::string words = rightCasesInWords();
        tickRightCases(quiz);
        click(quiz, "NQOK");
        EXPECT_EQ(verdict, "Right!");
        EXPECT_EQ(answer.toStdString(), words);
        EXPECT_EQ(ticked(quiz), 0);
        EXPECT_EQ(text(quiz, "NounRightAnswer"), "");
    }
    click(quiz, "AblativePluralCheck");
    click(quiz, "AccusativeSingCheck");
    click(quiz, "GenitivePluralCheck");
    click(quiz, "NQOK");
    EXPECT_EQ(verdict, "Wrong!");
}

TEST_F(NounQuizWindow, NeedsEveryCaseAndTakesATickBack)
{
    QWidget& quiz = open();
    QString verdict;
    QString answer;
    watch(quiz, verdict, answer);
    click(quiz, "NQOK");
    EXPECT_EQ(verdict, "Wrong!");

    tickRightCases(quiz);
    click(quiz, "AblativePluralCheck");
    click(quiz, "AblativePluralCheck");
    press(quiz, Qt::Key_Space);
    press(quiz, Qt::Key_Space);
    click(quiz, "NQOK");
    EXPECT_EQ(verdict, "Right!");
}

TEST_F(NounQuizWindow, SpeaksTheLanguageOfTheFeedback)
{
    shell::settings.CurrentLanguage = shell::language::German;
    QWidget& quiz = open();
    QString verdict;
    QString answer;
    watch(quiz, verdict, answer);
    click(quiz, "NQOK");
    EXPECT_EQ(verdict, "Falsch!");
    EXPECT_EQ(control<QAbstractButton>(quiz, "NQCancel").text(), "&Abbruch");
}

TEST_F(NounQuizWindow, JudgesOnceWhileItPauses)
{
    QWidget& quiz = open();
    QString first;
    const auto process = fake.whileWaiting;
    fake.whileWaiting = [&] {
        const QString form = text(quiz, "NounQuizIndices");
        click(quiz, "NQOK");
        click(quiz, "GenitiveSingCheck");
        EXPECT_EQ(text(quiz, "NounQuizIndices"), form);
        process();
    };
    click(quiz, "NQOK");
    EXPECT_EQ(fake.waits, 1);
    EXPECT_EQ(ticked(quiz), 0);
}

TEST_F(NounQuizWindow, GoesOnAtOnceWhenSkippedInAPause)
{
    QWidget& quiz = open();
    const auto process = fake.whileWaiting;
    QString skippedTo;
    fake.whileWaiting = [&] {
        click(quiz, "NQSkip");
        skippedTo = text(quiz, "NounQuizForm") + text(quiz, "NounQuizIndices");
        EXPECT_EQ(text(quiz, "NounQuizVerdict"), "");
        process();
    };
    click(quiz, "NQOK");
    EXPECT_EQ(text(quiz, "NounQuizForm") + text(quiz, "NounQuizIndices"), skippedTo);
}

TEST_F(NounQuizWindow, IsLeftAtOnceInAPause)
{
    for (const auto leave :
         {+[](QWidget& quiz) { click(quiz, "NQCancel"); },
          +[](QWidget& quiz) { press(quiz, Qt::Key_Escape); }, +[](QWidget& quiz) { quiz.close(); }}) {
        QWidget& quiz = open();
        const QString asked = text(quiz, "NounQuizIndices");
        const auto process = fake.whileWaiting;
        fake.whileWaiting = [&] {
            leave(quiz);
            process();
        };
        click(quiz, "NQOK");
        fake.whileWaiting = process;
        EXPECT_EQ(shownWindow("NounQuiz"), nullptr);
        EXPECT_NE(shownWindow("MainMenu"), nullptr);
        EXPECT_EQ(text(quiz, "NounQuizIndices"), asked);
    }
}

TEST_F(NounQuizWindow, SetsTheDeclensionOfTheNounInBold)
{
    QWidget& quiz = open();
    constexpr std::array labels = {0, 1, 1, 1, 4, 4, 5, 2};
    for (int questions = 0; questions < 40; ++questions) {
        const int drawn = labels.at(static_cast<std::size_t>(nounQuestion.QuizParadigmIndex));
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(control<QLabel>(quiz, QStringLiteral("NounQuizDeclension%1").arg(i)).font().bold(),
                      i == drawn);
        click(quiz, "NQSkip");
    }
}

TEST_F(NounQuizWindow, AsksForTheDelayWindow)
{
    const auto* const menu = qobject_cast<shell::MainMenu*>(shownWindow("MainMenu"));
    QWidget& quiz = open();
    QSignalSpy requests(menu, &shell::MainMenu::delayRequested);
    click(quiz, "NQOptions");
    EXPECT_EQ(requests.count(), 1);
}

} // namespace
