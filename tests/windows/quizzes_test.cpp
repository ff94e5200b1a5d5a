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
    Quizzes() { open("QuizButton", "Probatio"); }

    static QWidget& quiz() { return shown("Probatio"); }
    static QWidget& choice() { return shown("QuizInclude"); }
    static QString text(const char* name) { return label(quiz(), name); }

    static QStringList ticked()
    {
        QStringList names;
        for (const QCheckBox* const box : choice().findChildren<QCheckBox*>())
            if (box->isChecked())
                names << box->objectName();
        return names;
    }

    static void clickChoices(const QString& names)
    {
        for (const QString& name : names.split(' '))
            click(choice(), name);
    }

    // A form's number: six to a tense, three to a number.
    static void answerRightly()
    {
        const int form = verbQuiz.QuizRow - 1;
        clickRow(list(quiz(), "QuizConjList"), verbQuiz.QuizConjugation - 1);
        clickRow(list(quiz(), "QuizTenseList"), form / 6);
        click(quiz(), QStringList({"QuizFirst", "QuizSecond", "QuizThird"}).at(form % 3));
        click(quiz(), form % 6 < 3 ? "QuizSing" : "QuizPlural");
        click(quiz(), "QuizOK");
    }

    static void expectQuestion()
    {
        EXPECT_FALSE(text("QuizItem").isEmpty());
        EXPECT_EQ(text("QuizBaseForm").toStdString(), verbdrills::titleOfFormAsked());
        EXPECT_EQ(text("QuizYourAnswer") + text("QuizHeading") + text("QuizCorrect"), "");
        for (const char* const name : {"QuizConjList", "QuizTenseList"})
            EXPECT_TRUE(list(quiz(), name).selectedItems().isEmpty());
        EXPECT_TRUE(button(quiz(), "QuizFirst").isChecked() && button(quiz(), "QuizSing").isChecked());
        EXPECT_EQ(focusIn(quiz()), "QuizConjList");
    }
};

// Two beeps tell each new form. The right answer in words does not count.
TEST_F(Quizzes, OfVerbsAreAnsweredFromTheKeyboardAndShowBothAnswersInTheLanguage)
{
    settings.CurrentLanguage = shell::language::German;
    open("QuizButton", "Probatio");
    expectQuestion();
    EXPECT_EQ(fake.beeps, 4);
    verbQuiz.QuizConjugation = verbs::ThirdIoConjugation;
    verbQuiz.QuizRow = 21;
    verbdrills::identifyForm();
    for (const auto& [name, steps] :
         {std::pair{"QuizConjList", 7}, {"QuizFirst", 1}, {"QuizSing", 1}, {"QuizTenseList", 17}}) {
        EXPECT_EQ(focusIn(quiz()), name);
        // As by a letter that they share with others: it chooses none, and the next step leads back.
        for (const char* const option : {"QuizThird", "QuizPlural"})
            control<QRadioButton>(quiz(), option).setFocus(Qt::ShortcutFocusReason);
        control<QWidget>(quiz(), name).setFocus();
        const QString before = text("QuizYourAnswer");
        press(quiz(), Qt::Key_Down, steps);
        EXPECT_NE(text("QuizYourAnswer"), before);
        if (name != std::string_view("QuizTenseList"))
            press(quiz(), Qt::Key_Tab);
    }
    press(quiz(), Qt::Key_Return);
    click(quiz(), "QuizQuestion");
    EXPECT_EQ(text("QuizHeading"), "Korrekte Antwort");
    EXPECT_EQ(text("QuizCorrect"), "3. Person Sing., 3. Konjugation (-io), Perfekt Indikativ");
    EXPECT_EQ(text("QuizYourAnswer"), "2. Person Plur., Velle (wollen), Passiv Futur Perfekt Indikativ");
    EXPECT_EQ(settings.AnsweredCount, 1);
    click(quiz(), "QuizSkip");
    EXPECT_EQ(fake.beeps, 6);
    expectQuestion();
    for (const char* const name : {"QuizFirst", "QuizSing", "QuizTenseList"}) {
        press(quiz(), Qt::Key_Tab);
        EXPECT_EQ(focusIn(quiz()), name);
    }
}

// A click on a class stores the tenses with it; the two buttons, and a click on a tense, store nothing yet.
TEST_F(Quizzes, OfVerbsAskWhatIsIncludedAndAreLeftForTheChoiceInAPause)
{
    const QString form = text("QuizItem");
    click(quiz(), "QuizOptions");
    EXPECT_EQ(ticked(), QStringList({"InclConj0", "InclTense0"}));
    EXPECT_TRUE(choice().testAttribute(Qt::WA_KeyboardFocusChange));
    clickChoices("InclTense3 InclConj4 InclInclude");
    EXPECT_EQ(ticked().size(), 29);
    clickChoices("InclClear InclTense4");
    EXPECT_EQ(ticked(), QStringList{"InclTense4"});
    press(choice(), Qt::Key_Escape);
    EXPECT_EQ(text("QuizItem"), form);
    click(quiz(), "QuizOptions");
    EXPECT_EQ(ticked(), QStringList({"InclConj0", "InclConj4", "InclTense0", "InclTense3"}));
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

TEST_F(Quizzes, OfVerbsKeepTheTensesOfAMoodAndAVoiceInOneColumn)
{
    click(quiz(), "QuizOptions");
    const auto column = [](int tense) {
        return button(choice(), QStringLiteral("InclTense%1").arg(tense)).mapTo(&choice(), QPoint()).x();
    };
    for (const auto& [first, last] : {std::pair{0, 5}, {6, 10}, {11, 20}})
        for (int tense = first; tense <= last; ++tense)
            EXPECT_EQ(column(tense), column(first)) << tense;
    EXPECT_TRUE(column(5) < column(6) && column(10) < column(11));
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
// while it is judged, and then counts; one skipped before does not.
TEST_F(Quizzes, OfNounsJudgeTheTicksAndAskAnew)
{
    QWidget& nounQuiz = open("FileNounQuiz", "NounQuiz");
    EXPECT_TRUE(nounQuiz.testAttribute(Qt::WA_KeyboardFocusChange));
    constexpr std::array Declensions = {0, 1, 1, 1, 4, 4, 5, 2};
    const QStringList scores = {" 100% ", " 50% ", " 67% "};
    QColor right;
    for (int questions = 0; questions < 60; ++questions) {
        click(nounQuiz, "NQSkip");
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
            EXPECT_EQ(label(nounQuiz, "NounVerdict") == "Right!", questions % 3 != 1);
            const auto& colours = control<QLabel>(nounQuiz, "NounVerdict").palette();
            if (questions % 3 == 0)
                right = colours.color(QPalette::WindowText);
            EXPECT_EQ(colours.color(QPalette::WindowText) == right, questions % 3 != 1);
            EXPECT_TRUE(questions > 2 || label(nounQuiz, "NounQuizScore") == scores.at(questions));
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer"), words);
            if (questions % 5 == 0)
                click(nounQuiz, "NQSkip");
            EXPECT_EQ(label(nounQuiz, "NounRightAnswer").isEmpty(), questions % 5 == 0);
        });
        click(nounQuiz, "NQOK");
        EXPECT_EQ(label(nounQuiz, "NounVerdict") + label(nounQuiz, "NounRightAnswer"), "");
    }
    open("FileNounQuiz", "NounQuiz");
    EXPECT_EQ(label(nounQuiz, "NounQuizScore"), "");
    click(nounQuiz, "NQOptions");
    EXPECT_NE(shownWindow("DelayInterval"), nullptr);
}

} // namespace
