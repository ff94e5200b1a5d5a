#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"

#include <QCheckBox>

namespace {

using namespace nouns;
using namespace tests;
using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using verbdrills::verbQuiz;

// The verb quiz as it opens from the main window, with the settings of a first start.
class Quizzes : public WindowTest {
protected:
    Quizzes()
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        open("QuizButton", "Probatio");
    }

    static QWidget& quiz() { return shown("Probatio"); }
    static QWidget& choice() { return shown("QuizInclude"); }
    static QString text(const char* name) { return label(quiz(), name); }

    static bool ticked(const QString& boxes, int i)
    {
        return button(choice(), boxes + QString::number(i)).isChecked();
    }

    static void ask(std::int16_t verbClass, std::int16_t form)
    {
        verbQuiz.QuizConjugation = verbClass;
        verbQuiz.QuizRow = form;
        verbdrills::identifyForm();
    }

    // A form's number: six to a tense, three to a number.
    static void chooseAnswer(int verbClass, int form)
    {
        clickRow(list(quiz(), "QuizConjList"), verbClass - 1);
        clickRow(list(quiz(), "QuizTenseList"), (form - 1) / 6);
        click(quiz(), QStringList({"QuizFirst", "QuizSecond", "QuizThird"}).at((form - 1) % 3));
        click(quiz(), (form - 1) % 6 < 3 ? "QuizSing" : "QuizPlural");
    }

    static void answerRightly() { chooseAnswer(verbQuiz.QuizConjugation, verbQuiz.QuizRow); }

    static void expectQuestion()
    {
        EXPECT_FALSE(text("QuizItem").isEmpty());
        EXPECT_EQ(text("QuizYourAnswer") + text("QuizHeading") + text("QuizCorrect"), "");
        for (const char* const name : {"QuizConjList", "QuizTenseList"})
            EXPECT_TRUE(list(quiz(), name).selectedItems().isEmpty());
        for (const char* const first : {"QuizFirst", "QuizSing"})
            EXPECT_TRUE(button(quiz(), first).isChecked());
        EXPECT_EQ(focusIn(quiz()), "QuizConjList");
    }
};

// Two beeps tell each new form.
TEST_F(Quizzes, OfVerbsAreAnsweredFromTheKeyboard)
{
    expectQuestion();
    EXPECT_EQ(fake.beeps, 2);
    ask(verbs::FirstConjugation, 11);
    for (const auto& [name, steps] :
         {std::pair{"QuizConjList", 1}, {"QuizTenseList", 2}, {"QuizFirst", 1}, {"QuizSing", 1}}) {
        EXPECT_EQ(focusIn(quiz()), name);
        press(quiz(), Qt::Key_Down, steps);
        EXPECT_NE(text("QuizYourAnswer"), "");
        if (name != std::string_view("QuizSing"))
            press(quiz(), Qt::Key_Tab);
    }
    EXPECT_EQ(text("QuizYourAnswer"), "2nd Person Plur, First Conjugation, Imperfect Indicative");
    press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(fake.beeps, 4);
    expectQuestion();
}

TEST_F(Quizzes, OfVerbsShowBothAnswersInTheLanguageAndAreSkippedWithoutCounting)
{
    settings.CurrentLanguage = shell::language::German;
    open("QuizButton", "Probatio");
    ask(verbs::ThirdIoConjugation, 21);
    chooseAnswer(verbs::Velle, 16 * 6 + 4);
    click(quiz(), "QuizQuestion");
    for (const auto& [name, words] :
         {std::pair{"QuizHeading", "Korrekte Antwort"},
          {"QuizCorrect", "3. Person Sing., 3. Konjugation (-io), Perfekt Indikativ"},
          {"QuizYourAnswer", "1. Person Plur., Velle (wollen), Passiv Futur Perfekt Indikativ"}})
        EXPECT_EQ(text(name), words);
    click(quiz(), "QuizSkip");
    expectQuestion();
    EXPECT_EQ(settings.AnsweredCount, 0);
}

// A click on a class stores the tenses with it; the two buttons, and a click on a tense, store nothing yet.
TEST_F(Quizzes, OfVerbsAskWhatIsIncludedAndAreLeftForTheChoiceInAPause)
{
    const QString form = text("QuizItem");
    click(quiz(), "QuizOptions");
    for (int i = 0; i < 21; ++i)
        EXPECT_TRUE(ticked("InclTense", i) == (i == 0) && ticked("InclConj", i % 8) == (i % 8 == 0));
    click(choice(), "InclTense4");
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagFalse);
    click(choice(), "InclConj3");
    EXPECT_EQ(settings.QuizConjInclude[3], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagTrue);
    for (const auto& [all, tick] : {std::pair{"InclInclude", true}, {"InclClear", false}}) {
        click(choice(), all);
        for (int i = 0; i < 21; ++i)
            EXPECT_TRUE(ticked("InclTense", i) == tick && ticked("InclConj", i % 8) == tick);
        EXPECT_EQ(settings.QuizConjInclude[7], FlagFalse);
    }
    press(choice(), Qt::Key_Escape);
    EXPECT_EQ(text("QuizItem"), form);
    click(quiz(), "QuizOptions");
    EXPECT_TRUE(ticked("InclConj", 3));
    click(choice(), "InclClear");
    button(choice(), "InclTense1").setFocus();
    press(choice(), Qt::Key_Space);
    press(choice(), Qt::Key_Return);
    for (int answers = 1; answers <= 6; ++answers) {
        EXPECT_LE(verbQuiz.QuizRow, 12);
        EXPECT_EQ(verbQuiz.QuizConjugation, verbs::FirstConjugation);
        answerRightly();
        click(quiz(), "QuizOK");
        EXPECT_EQ(settings.RightCount, answers);
        expectQuestion();
    }
    answerRightly();
    duringPause([] { click(quiz(), "QuizOptions"); });
    click(quiz(), "QuizOK");
    EXPECT_EQ(shownWindow("Probatio"), nullptr);
    EXPECT_EQ(shownWindow("Bravo"), nullptr);
    click(choice(), "InclCancel");
    EXPECT_EQ(settings.RightCount, 7);
    expectQuestion();
}

// The passive of esse does not exist: the quiz asks for more to choose from, and can be left.
TEST_F(Quizzes, OfVerbsLeadToTheChoiceWhereNothingCanBeAsked)
{
    click(quiz(), "QuizOptions");
    click(choice(), "InclClear");
    for (const char* const next : {"InclConj5", "InclTense11", "InclTense12", "InclQuiz"})
        click(choice(), next);
    answerRightly();
    click(quiz(), "QuizOK");
    EXPECT_TRUE(control<QLabel>(choice(), "InclNote").isVisible());
    click(choice(), "InclQuiz");
    EXPECT_EQ(shownWindow("Probatio"), nullptr);
    click(choice(), "InclCancel");
    EXPECT_EQ(text("QuizItem"), "");
    press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.AnsweredCount, 1);
    click(quiz(), "QuizCancel");
    click(shown("MainMenu"), "QuizButton");
    EXPECT_EQ(shownWindow("Probatio"), nullptr);
    click(choice(), "InclTense0");
    click(choice(), "InclQuiz");
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::Esse);
    expectQuestion();
    click(quiz(), "QuizOptions");
    EXPECT_FALSE(control<QLabel>(choice(), "InclNote").isVisible());
}

// A form can be skipped while it is judged. German has no caption for most nouns.
TEST_F(Quizzes, OfNounsJudgeTheTicksAndAskAnew)
{
    settings.CurrentLanguage = shell::language::German;
    QWidget& nounQuiz = open("FileNounQuiz", "NounQuiz");
    constexpr std::array Declensions = {0, 1, 1, 1, 4, 4, 5, 2};
    for (int questions = 0; questions < 60; ++questions) {
        if (questions == 20)
            settings.CurrentLanguage = shell::language::English;
        const int paradigm = nounQuestion.QuizParadigmIndex + 1;
        EXPECT_EQ(label(nounQuiz, "NounQuizForm").toStdString(),
                  nounTables.NounForms[paradigm][nounQuestion.QuizCaseIndex + 1]);
        EXPECT_EQ(label(nounQuiz, "NounQuizInfo").toStdString(), nounTables.NounCaption[paradigm]);
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(control<QLabel>(nounQuiz, QStringLiteral("NounQuizDeclension%1").arg(i)).font().bold(),
                      i == Declensions.at(static_cast<std::size_t>(paradigm - 1)));
        for (int i = 0; const QCheckBox* const check : nounQuiz.findChildren<QCheckBox*>()) {
            EXPECT_FALSE(check->isChecked());
            if (nounQuestion.QuizRightCases[i++] == FlagTrue)
                click(nounQuiz, check->objectName());
        }
        // Every third answer has a case too many, every other third a tick that was taken back.
        for (int i = 0; i < questions % 3; ++i)
            click(nounQuiz, "AblativePluralCheck");
        const QString words = QString::fromStdString(rightCasesInWords());
        duringPause([&] {
            const bool right =
                QStringList({"Richtig!", "Right!"}).contains(label(nounQuiz, "NounQuizVerdict"));
            EXPECT_EQ(right, questions % 3 != 1);
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer"), words);
            if (questions % 5 == 0)
                click(nounQuiz, "NQSkip");
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer").isEmpty(), questions % 5 == 0);
        });
        click(nounQuiz, "NQOK");
        EXPECT_EQ(label(nounQuiz, "NounQuizVerdict") + label(nounQuiz, "NounRightAnswer"), "");
    }
    click(nounQuiz, "NQOptions");
    press(shown("DelayInterval"), Qt::Key_Escape);
}

} // namespace
