#include "nouns/noun_question.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"

namespace {

using namespace nouns;
using namespace tests;
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

    // The choice shows these classes and tenses.
    static void expectTicks(const std::function<bool(int)>& classes, const std::function<bool(int)>& tenses)
    {
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(button(choice(), "InclConj" + QString::number(i)).isChecked(), classes(i));
        for (int i = 0; i < 21; ++i)
            EXPECT_EQ(button(choice(), "InclTense" + QString::number(i)).isChecked(), tenses(i));
    }

    static void clickChoices(const QString& names)
    {
        for (const QString& name : names.split(' '))
            click(choice(), name);
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

    static void answerRightly()
    {
        chooseAnswer(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
        click(quiz(), "QuizOK");
    }

    static void expectQuestion()
    {
        EXPECT_FALSE(text("QuizItem").isEmpty());
        EXPECT_EQ(text("QuizYourAnswer") + text("QuizHeading") + text("QuizCorrect"), "");
        for (const char* const name : {"QuizConjList", "QuizTenseList"})
            EXPECT_TRUE(list(quiz(), name).selectedItems().isEmpty());
        EXPECT_TRUE(button(quiz(), "QuizFirst").isChecked() && button(quiz(), "QuizSing").isChecked());
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
    EXPECT_EQ(text("QuizHeading"), "Korrekte Antwort");
    EXPECT_EQ(text("QuizCorrect"), "3. Person Sing., 3. Konjugation (-io), Perfekt Indikativ");
    EXPECT_EQ(text("QuizYourAnswer"), "1. Person Plur., Velle (wollen), Passiv Futur Perfekt Indikativ");
    click(quiz(), "QuizSkip");
    expectQuestion();
    EXPECT_EQ(settings.AnsweredCount, 0);
}

// A click on a class stores the tenses with it; the two buttons, and a click on a tense, store nothing yet.
TEST_F(Quizzes, OfVerbsAskWhatIsIncludedAndAreLeftForTheChoiceInAPause)
{
    const auto first = [](int i) { return i == 0; };
    const auto firstAndFourth = [](int i) { return i == 0 || i == 3; };
    const QString form = text("QuizItem");
    click(quiz(), "QuizOptions");
    expectTicks(first, first);
    clickChoices("InclTense3 InclConj3 InclInclude");
    expectTicks([](int) { return true; }, [](int) { return true; });
    clickChoices("InclClear InclTense4");
    expectTicks([](int) { return false; }, [](int i) { return i == 4; });
    press(choice(), Qt::Key_Escape);
    EXPECT_EQ(text("QuizItem"), form);
    click(quiz(), "QuizOptions");
    expectTicks(firstAndFourth, firstAndFourth);
    click(choice(), "InclClear");
    button(choice(), "InclTense1").setFocus();
    press(choice(), Qt::Key_Space);
    press(choice(), Qt::Key_Return);
    for (int answers = 1; answers <= 6; ++answers) {
        EXPECT_LE(verbQuiz.QuizRow, 12);
        EXPECT_EQ(verbQuiz.QuizConjugation, verbs::FirstConjugation);
        answerRightly();
        EXPECT_EQ(settings.RightCount, answers);
        expectQuestion();
    }
    duringPause([] { click(quiz(), "QuizOptions"); });
    answerRightly();
    EXPECT_FALSE(shownWindow("Probatio") || shownWindow("Bravo"));
    click(choice(), "InclCancel");
    EXPECT_EQ(settings.RightCount, 7);
    expectQuestion();
}

// The passive of esse does not exist: the quiz asks for more to choose from, and can be left.
TEST_F(Quizzes, OfVerbsLeadToTheChoiceWhereNothingCanBeAsked)
{
    click(quiz(), "QuizOptions");
    clickChoices("InclClear InclConj5 InclTense11 InclTense12 InclQuiz");
    answerRightly();
    EXPECT_TRUE(control<QLabel>(choice(), "InclNote").isVisible());
    clickChoices("InclQuiz InclCancel");
    EXPECT_EQ(text("QuizItem"), "");
    press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.AnsweredCount, 1);
    click(quiz(), "QuizCancel");
    click(shown("MainMenu"), "QuizButton");
    EXPECT_EQ(shownWindow("Probatio"), nullptr);
    clickChoices("InclTense0 InclQuiz");
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::Esse);
    expectQuestion();
    click(quiz(), "QuizOptions");
    EXPECT_FALSE(control<QLabel>(choice(), "InclNote").isVisible());
}

// Every third answer has a case too many, every other third a tick that was taken back. A form can be skipped
// while it is judged.
TEST_F(Quizzes, OfNounsJudgeTheTicksAndAskAnew)
{
    QWidget& nounQuiz = open("FileNounQuiz", "NounQuiz");
    constexpr std::array Declensions = {0, 1, 1, 1, 4, 4, 5, 2};
    for (int questions = 0; questions < 60; ++questions) {
        EXPECT_EQ(label(nounQuiz, "NounQuizForm").toStdString(), askedForm());
        EXPECT_EQ(label(nounQuiz, "NounQuizInfo").toStdString(), askedNoun());
        const int declension = Declensions.at(static_cast<std::size_t>(nounQuestion.QuizParadigmIndex));
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(control<QLabel>(nounQuiz, QStringLiteral("NounQuizDeclension%1").arg(i)).font().bold(),
                      i == declension);
        for (int i = 0; QCheckBox* const check : nounQuiz.findChildren<QCheckBox*>()) {
            EXPECT_FALSE(check->isChecked());
            if (nounQuestion.QuizRightCases[i++] == platform::FlagTrue)
                check->click();
        }
        for (int i = 0; i < questions % 3; ++i)
            click(nounQuiz, "AblativePluralCheck");
        const QString words = QString::fromStdString(rightCasesInWords());
        duringPause([&] {
            EXPECT_EQ(label(nounQuiz, "NounQuizVerdict") == "Right!", questions % 3 != 1);
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer"), words);
            if (questions % 5 == 0)
                click(nounQuiz, "NQSkip");
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer").isEmpty(), questions % 5 == 0);
        });
        click(nounQuiz, "NQOK");
        EXPECT_EQ(label(nounQuiz, "NounQuizVerdict") + label(nounQuiz, "NounRightAnswer"), "");
    }
    click(nounQuiz, "NQOptions");
    EXPECT_NE(shownWindow("DelayInterval"), nullptr);
}

} // namespace
