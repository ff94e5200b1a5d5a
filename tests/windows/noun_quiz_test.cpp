#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "tests/support/window_test.h"

#include <QCheckBox>

namespace {

using namespace nouns;
using namespace tests;

class NounQuizWindow : public WindowTest {
protected:
    NounQuizWindow()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        quiz = &open("FileNounQuiz", "NounQuiz");
    }

    void tickRightCases()
    {
        for (int i = 0; QCheckBox* const check : quiz->findChildren<QCheckBox*>())
            if (nounQuestion.QuizRightCases[i++] == platform::FlagTrue)
                click(*quiz, check->objectName());
    }

    int ticked()
    {
        return static_cast<int>(
            std::ranges::count_if(quiz->findChildren<QCheckBox*>(), &QCheckBox::isChecked));
    }

    QString question() { return label(*quiz, "NounQuizForm") + label(*quiz, "NounQuizIndices"); }

    // Checks the ticks; what the window says of them while it pauses.
    std::pair<QString, QString> verdictAndAnswer()
    {
        std::pair<QString, QString> said;
        duringPause([&] { said = {label(*quiz, "NounQuizVerdict"), label(*quiz, "NounRightAnswer")}; });
        click(*quiz, "NQOK");
        return said;
    }

    QWidget* quiz = nullptr;
};

TEST_F(NounQuizWindow, JudgesTheTicksAndAsksAnew)
{
    constexpr std::array Declensions = {0, 1, 1, 1, 4, 4, 5, 2};
    for (int questions = 0; questions < 40; ++questions) {
        const int paradigm = nounQuestion.QuizParadigmIndex + 1;
        EXPECT_EQ(label(*quiz, "NounQuizForm").toStdString(),
                  nounTables.NounForms[paradigm][nounQuestion.QuizCaseIndex + 1]);
        EXPECT_EQ(label(*quiz, "NounQuizInfo").toStdString(), nounTables.NounCaption[paradigm]);
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(control<QLabel>(*quiz, QStringLiteral("NounQuizDeclension%1").arg(i)).font().bold(),
                      i == Declensions.at(static_cast<std::size_t>(paradigm - 1)));
        const QString words = QString::fromStdString(rightCasesInWords());
        const QString asked = question();
        tickRightCases();
        EXPECT_EQ(verdictAndAnswer(), std::pair(QString("Right!"), words));
        EXPECT_NE(question(), asked);
        EXPECT_EQ(ticked(), 0);
        EXPECT_EQ(label(*quiz, "NounRightAnswer"), "");
    }
}

TEST_F(NounQuizWindow, NeedsEveryCaseAndTakesATickBack)
{
    EXPECT_EQ(verdictAndAnswer().first, "Wrong!");
    tickRightCases();
    click(*quiz, "AblativePluralCheck");
    click(*quiz, "AblativePluralCheck");
    press(*quiz, Qt::Key_Space, 2);
    EXPECT_EQ(verdictAndAnswer().first, "Right!");
    for (const char* const wrong : {"AblativePluralCheck", "AccusativeSingCheck", "GenitivePluralCheck"})
        click(*quiz, wrong);
    EXPECT_EQ(verdictAndAnswer().first, "Wrong!");
}

TEST_F(NounQuizWindow, GoesOnAtOnceWhenSkippedInAPause)
{
    QString skippedTo;
    duringPause([&] {
        click(*quiz, "NQSkip");
        skippedTo = question();
        EXPECT_EQ(label(*quiz, "NounQuizVerdict"), "");
    });
    click(*quiz, "NQOK");
    EXPECT_EQ(question(), skippedTo);
    click(*quiz, "NQOptions");
    press(shown("DelayInterval"), Qt::Key_Escape);
    EXPECT_EQ(question(), skippedTo);
}

} // namespace
