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

// The quiz as it opens from the main window, with the settings of a first start.
class VerbQuizWindows : public WindowTest {
protected:
    VerbQuizWindows()
    {
        copySample("verbs.cfg");
        open("QuizButton", "Probatio");
    }

    static QWidget& quiz() { return shown("Probatio"); }
    static QWidget& choice() { return shown("QuizInclude"); }
    static QString text(const char* name) { return label(quiz(), name); }
    static bool ticked(const char* boxes, int i)
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

    static void include(const QStringList& boxes)
    {
        click(quiz(), "QuizOptions");
        click(choice(), "InclClear");
        for (const QString& box : boxes)
            click(choice(), box);
        click(choice(), "InclQuiz");
    }

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
TEST_F(VerbQuizWindows, IsAnsweredFromTheKeyboard)
{
    expectQuestion();
    EXPECT_EQ(fake.beeps, 2);
    ask(verbs::FirstConjugation, 11);
    for (const auto& [name, steps] :
         {std::pair{"QuizConjList", 1}, {"QuizTenseList", 2}, {"QuizFirst", 1}, {"QuizSing", 1}}) {
        EXPECT_EQ(focusIn(quiz()), name);
        press(quiz(), Qt::Key_Down, steps);
        if (name != std::string_view("QuizSing"))
            press(quiz(), Qt::Key_Tab);
    }
    EXPECT_EQ(text("QuizYourAnswer"), "2nd Person Plur, First Conjugation, Imperfect Indicative");
    press(quiz(), Qt::Key_Return);
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(fake.beeps, 4);
    expectQuestion();
}

TEST_F(VerbQuizWindows, AsksWhatIsIncludedAndIsLeftForTheChoiceInAPause)
{
    include({"InclConj0", "InclConj5", "InclTense0", "InclTense1", "InclTense2"});
    for (int answers = 1; answers <= 12; ++answers) {
        EXPECT_LE(verbQuiz.QuizRow, 18);
        chooseAnswer(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
        click(quiz(), "QuizOK");
        EXPECT_EQ(settings.RightCount, answers);
        expectQuestion();
    }
    chooseAnswer(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
    duringPause([] { click(quiz(), "QuizOptions"); });
    click(quiz(), "QuizOK");
    EXPECT_EQ(shownWindow("Probatio"), nullptr);
    EXPECT_EQ(shownWindow("Bravo"), nullptr);
    click(choice(), "InclCancel");
    EXPECT_EQ(settings.RightCount, 13);
    expectQuestion();
}

TEST_F(VerbQuizWindows, ShowsBothAnswersInTheLanguageAndSkipsWithoutCounting)
{
    constexpr std::array<const char*, 4> Languages[] = {
        {"German", "Korrekte Antwort", "3. Person Sing., 3. Konjugation (-io), Perfekt Indikativ",
         "1. Person Plur., Velle (wollen), Passiv Futur Perfekt Indikativ"},
        {"Latin", "Responsum rectum", "Persona iii Sing., Conjugatio III (-io), Perfectum Indicativum",
         "Persona i Plur., Velle, Passivum Futurum Perfectum Indicativum"}};
    for (const auto& [language, heading, correct, yours] : Languages) {
        settings.CurrentLanguage = language;
        open("QuizButton", "Probatio");
        ask(verbs::ThirdIoConjugation, 21);
        chooseAnswer(verbs::Velle, 16 * 6 + 4);
        click(quiz(), "QuizQuestion");
        EXPECT_EQ(text("QuizHeading"), heading);
        EXPECT_EQ(text("QuizCorrect"), correct);
        EXPECT_EQ(text("QuizYourAnswer"), yours);
        click(quiz(), "QuizSkip");
        expectQuestion();
    }
    EXPECT_EQ(settings.AnsweredCount, 0);
}

TEST_F(VerbQuizWindows, StoresClassesAtOnceAndTensesWithThem)
{
    const QString form = text("QuizItem");
    click(quiz(), "QuizOptions");
    for (int i = 0; i < 21; ++i) {
        EXPECT_EQ(ticked("InclTense", i), i == 0);
        EXPECT_EQ(ticked("InclConj", i % 8), i % 8 == 0);
    }
    click(choice(), "InclTense4");
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagFalse);
    click(choice(), "InclConj3");
    EXPECT_EQ(settings.QuizConjInclude[3], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[4], FlagTrue);
    for (const auto& [button, all] : {std::pair{"InclInclude", true}, {"InclClear", false}}) {
        click(choice(), button);
        for (const auto& [boxes, last] : {std::pair{"InclConj", 7}, {"InclTense", 20}})
            EXPECT_TRUE(ticked(boxes, 0) == all && ticked(boxes, last) == all) << boxes;
        EXPECT_EQ(settings.QuizConjInclude[7], FlagFalse);
    }
    press(choice(), Qt::Key_Escape);
    EXPECT_EQ(text("QuizItem"), form);
    EXPECT_EQ(settings.QuizConjInclude[3], FlagTrue);
}

TEST_F(VerbQuizWindows, TakesTheFirstOfEachWhereNoneIsTicked)
{
    include({"InclConj2", "InclTense3"});
    click(quiz(), "QuizOptions");
    click(choice(), "InclClear");
    button(choice(), "InclTense0").setFocus();
    press(choice(), Qt::Key_Return);
    EXPECT_EQ(settings.QuizConjInclude[0], FlagTrue);
    EXPECT_EQ(settings.QuizTenseInclude[0], FlagTrue);
    expectQuestion();
}

// The passive of esse does not exist: the quiz asks for more to choose from, and can be left.
TEST_F(VerbQuizWindows, LeadsToTheChoiceWhereNothingCanBeAsked)
{
    include({"InclConj5", "InclTense11", "InclTense12"});
    chooseAnswer(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
    click(quiz(), "QuizOK");
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_EQ(shownWindow("Bravo"), nullptr);
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
        for (int i = 0; const QCheckBox* const check : quiz->findChildren<QCheckBox*>())
            if (nounQuestion.QuizRightCases[i++] == platform::FlagTrue)
                click(*quiz, check->objectName());
    }

    QString question() { return label(*quiz, "NounQuizForm") + label(*quiz, "NounQuizIndices"); }
    QString judgement() { return label(*quiz, "NounQuizVerdict") + label(*quiz, "NounRightAnswer"); }

    // Checks the ticks; the window says in a pause what it thinks of them, and then asks anew.
    void expectJudgement(const char* verdict)
    {
        const QString asked = question();
        const QString expected = verdict + QString::fromStdString(rightCasesInWords());
        duringPause([&] { EXPECT_EQ(judgement(), expected); });
        click(*quiz, "NQOK");
        EXPECT_NE(question(), asked);
        EXPECT_EQ(judgement(), "");
        EXPECT_TRUE(std::ranges::none_of(quiz->findChildren<QCheckBox*>(), &QCheckBox::isChecked));
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
        tickRightCases();
        expectJudgement("Right!");
    }
}

TEST_F(NounQuizWindow, NeedsEveryCaseAndTakesATickBack)
{
    expectJudgement("Wrong!");
    tickRightCases();
    click(*quiz, "AblativePluralCheck");
    click(*quiz, "AblativePluralCheck");
    press(*quiz, Qt::Key_Space, 2);
    expectJudgement("Right!");
    for (const char* const wrong : {"AblativePluralCheck", "AccusativeSingCheck", "GenitivePluralCheck"})
        click(*quiz, wrong);
    expectJudgement("Wrong!");
}

TEST_F(NounQuizWindow, GoesOnAtOnceWhenSkippedInAPause)
{
    QString skippedTo;
    duringPause([&] {
        click(*quiz, "NQSkip");
        skippedTo = question();
        EXPECT_EQ(judgement(), "");
    });
    click(*quiz, "NQOK");
    EXPECT_EQ(question(), skippedTo);
    click(*quiz, "NQOptions");
    press(shown("DelayInterval"), Qt::Key_Escape);
    EXPECT_EQ(question(), skippedTo);
}

} // namespace
