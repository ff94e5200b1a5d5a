#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>

namespace {

using namespace nouns;
using tests::click;
using tests::control;
using tests::label;
using tests::press;

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
        start();
    }

    QWidget& openQuiz() { return open("FileNounQuiz", "NounQuiz"); }

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

    // Checks the ticks; what the window says of them while it pauses.
    std::pair<QString, QString> verdictAndAnswer(QWidget& quiz)
    {
        std::pair<QString, QString> said;
        duringPause([&] { said = {label(quiz, "NounQuizVerdict"), label(quiz, "NounRightAnswer")}; });
        click(quiz, "NQOK");
        return said;
    }
};

TEST_F(NounQuizWindow, ShowsAFormItsNounAndTheIndexes)
{
    QWidget& quiz = openQuiz();
    for (int questions = 0; questions < 20; ++questions) {
        const int paradigm = nounQuestion.QuizParadigmIndex + 1;
        EXPECT_EQ(label(quiz, "NounQuizForm").toStdString(),
                  nounTables.NounForms[paradigm][nounQuestion.QuizCaseIndex + 1]);
        EXPECT_EQ(label(quiz, "NounQuizInfo").toStdString(), nounTables.NounCaption[paradigm]);
        EXPECT_EQ(label(quiz, "NounQuizIndices").toStdString(), drawnIndexes());
        EXPECT_EQ(label(quiz, "NounRightAnswer"), "");
        click(quiz, "NQSkip");
    }
}

TEST_F(NounQuizWindow, JudgesTheTicksAndAsksAnew)
{
    QWidget& quiz = openQuiz();
    for (int questions = 0; questions < 20; ++questions) {
        const QString words = QString::fromStdString(rightCasesInWords());
        tickRightCases(quiz);
        EXPECT_EQ(verdictAndAnswer(quiz), std::pair(QString("Right!"), words));
        EXPECT_EQ(ticked(quiz), 0);
        EXPECT_EQ(label(quiz, "NounRightAnswer"), "");
    }
    for (const char* const wrong : {"AblativePluralCheck", "AccusativeSingCheck", "GenitivePluralCheck"})
        click(quiz, wrong);
    EXPECT_EQ(verdictAndAnswer(quiz).first, "Wrong!");
}

TEST_F(NounQuizWindow, NeedsEveryCaseAndTakesATickBack)
{
    QWidget& quiz = openQuiz();
    EXPECT_EQ(verdictAndAnswer(quiz).first, "Wrong!");
    tickRightCases(quiz);
    click(quiz, "AblativePluralCheck");
    click(quiz, "AblativePluralCheck");
    press(quiz, Qt::Key_Space);
    press(quiz, Qt::Key_Space);
    EXPECT_EQ(verdictAndAnswer(quiz).first, "Right!");
}

TEST_F(NounQuizWindow, SpeaksTheLanguageOfTheFeedback)
{
    shell::settings.CurrentLanguage = shell::language::German;
    QWidget& quiz = openQuiz();
    EXPECT_EQ(verdictAndAnswer(quiz).first, "Falsch!");
    EXPECT_EQ(control<QAbstractButton>(quiz, "NQCancel").text(), "&Abbruch");
}

TEST_F(NounQuizWindow, GoesOnAtOnceWhenSkippedInAPause)
{
    QWidget& quiz = openQuiz();
    QString skippedTo;
    duringPause([&] {
        click(quiz, "NQSkip");
        skippedTo = label(quiz, "NounQuizForm") + label(quiz, "NounQuizIndices");
        EXPECT_EQ(label(quiz, "NounQuizVerdict"), "");
    });
    click(quiz, "NQOK");
    EXPECT_EQ(label(quiz, "NounQuizForm") + label(quiz, "NounQuizIndices"), skippedTo);
}

TEST_F(NounQuizWindow, SetsTheDeclensionOfTheNounInBold)
{
    QWidget& quiz = openQuiz();
    constexpr std::array labels = {0, 1, 1, 1, 4, 4, 5, 2};
    for (int questions = 0; questions < 40; ++questions) {
        const int drawn = labels.at(static_cast<std::size_t>(nounQuestion.QuizParadigmIndex));
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(control<QLabel>(quiz, QStringLiteral("NounQuizDeclension%1").arg(i)).font().bold(),
                      i == drawn);
        click(quiz, "NQSkip");
    }
}

TEST_F(NounQuizWindow, OpensTheDelayWindowAndStays)
{
    QWidget& quiz = openQuiz();
    click(quiz, "NQOptions");
    press(tests::shown("DelayInterval"), Qt::Key_Escape);
    EXPECT_TRUE(quiz.isVisible());
}

} // namespace
