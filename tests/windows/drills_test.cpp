// What all drills have in common: an answer counts once, a hint does not count, and a pause can be left.

#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/verb_question.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

#include <vector>

namespace {

using shell::settings;
using tests::click;
using tests::control;
using tests::press;
using tests::shown;
using tests::shownWindow;
using tests::type;

struct Drill {
    const char* window;
    const char* opener;
    const char* back; // where one comes to on leaving
    const char* list; // of the chooser
    const char* check;
    const char* quit;
    std::vector<const char*> others; // buttons that do nothing in a pause
    const char* box;                 // with the number that is asked
    std::string (*asked)();          // tells one question from another
    void (*answerRightly)(QWidget&); // without checking it
    QColor colour = {};              // of what is typed after a hint
};

void PrintTo(const Drill& drill, std::ostream* stream)
{
    *stream << drill.window;
}

void chooseFirstForm(QWidget& quiz)
{
    verbdrills::verbQuiz.QuizRow = 1;
    verbdrills::identifyForm();
    tests::clickRow(control<QListWidget>(quiz, "QuizConjList"), 0);
    tests::clickRow(control<QListWidget>(quiz, "QuizTenseList"), 0);
}

void tickRightCases(QWidget& quiz)
{
    int inCase = 0;
    for (QCheckBox* const box : quiz.findChildren<QCheckBox*>())
        if (nouns::nounQuestion.QuizRightCases[inCase++] == platform::FlagTrue)
            box->click();
}

void typeText(QWidget& drill, const std::string& text)
{
    type(drill, QString::fromStdString(text));
}

using std::to_string;

// clang-format off
// First the drills with a box for each form, then the one with a single line, then the quizzes.
const std::vector<Drill> Drills = {
    {"Conjugation", "ConjugationButton", "ConjugationChoose", "ConjugationList", "Ccontinue", "Cquit", {"ConjQuestion"}, "ConjText",
        [] { return to_string(verbdrills::conjugationDrill.PersonIndex); },
        [](QWidget& drill) { typeText(drill, verbdrills::conjugationDrill.CorrectForm); }, Qt::blue},
    {"Declination", "DeclensionButton", "DeclinationChoose", "DeclinationList", "Continue", "DeclQuitButton", {"DeclQuestion"}, "DeclText",
        [] { return to_string(nouns::declensionDrill.CurrentCaseIndex); },
        [](QWidget& drill) { typeText(drill, nouns::declensionDrill.ExpectedAnswer); }, Qt::black},
    {"PronounSingular", "PronounButton", "PronounChooser", "PronounList", "PronounOK", "PronounCancel", {}, "Pronoun",
        [] { return to_string(nouns::pronounDrill.CurrentCell); },
        [](QWidget& drill) { typeText(drill, nouns::pronounDrill.ExpectedAnswer); }, Qt::black},
    {"Vcabtester", "VocabularyButton", "MainMenu", "", "VcabtesterOK", "VcabtesterCancel", {}, "",
        [] { return to_string(vocabulary::vocabularyList.CurrentWord); },
        [](QWidget& drill) { typeText(drill, vocabulary::expectedAnswer()); }},
    {"Probatio", "QuizButton", "MainMenu", "", "QuizOK", "QuizCancel", {"QuizQuestion", "QuizSkip"}, "",
        [] { return to_string(verbdrills::verbQuiz.QuizRow); }, chooseFirstForm},
    {"NounQuiz", "FileNounQuiz", "MainMenu", "", "NQOK", "NQCancel", {}, "", nouns::drawnIndexes, tickRightCases},
};
// clang-format on

class EveryDrill : public tests::WindowTest, public testing::WithParamInterface<Drill> {
protected:
    void SetUp() override
    {
        tests::copySample("verbs.cfg");
        tests::copySample("nouns.cfg");
        tests::writeFile("vr-vcab.lst", "rosa,rose,f.\r\nre:x,king,m.\r\n");
    }

    QWidget& open()
    {
        start();
        settings.QuizTenseInclude.fill(platform::FlagTrue);
        QWidget& window =
            WindowTest::open(drill().opener, *drill().list == '\0' ? drill().window : drill().back);
        if (*drill().list != '\0')
            tests::doubleClickRow(control<QListWidget>(window, drill().list), 0);
        return shown(drill().window);
    }

    static const Drill& drill() { return GetParam(); }
    static bool isQuizOfNouns() { return drill().asked == nouns::drawnIndexes; }
    static QLineEdit& askedBox(QWidget& window)
    {
        return control<QLineEdit>(window, drill().box + QString::fromStdString(drill().asked()));
    }

    static void answer(QWidget& window, bool right)
    {
        if (right)
            drill().answerRightly(window);
        else
            type(window, "x");
    }

    // Everything that a learner may press while an answer is judged or shown.
    static void pressEverything(QWidget& window)
    {
        type(window, "x?/");
        press(window, Qt::Key_Return);
        click(window, drill().check);
        for (const char* const button : drill().others)
            click(window, button);
    }

    static void expectNoFeedback()
    {
        EXPECT_EQ(shownWindow("Bravo"), nullptr);
        EXPECT_EQ(shownWindow("Wrong"), nullptr);
    }
};

TEST_P(EveryDrill, IsLeftAtOnceInAPauseAndDoesNotMoveOn)
{
    using Leave = void (*)(QWidget&);
    for (const bool right : {true, false})
        for (const Leave leave : {Leave([](QWidget& window) { click(window, drill().quit); }),
                                  Leave([](QWidget& window) { press(window, Qt::Key_Escape); }),
                                  Leave([](QWidget& window) { window.close(); })}) {
            QWidget& window = open();
            answer(window, right);
            const std::string asked = drill().asked();
            duringPause([&] {
                leave(window);
                expectNoFeedback();
                EXPECT_NE(shownWindow(drill().back), nullptr);
            });
            click(window, drill().check);
            expectNoFeedback();
            EXPECT_EQ(shownWindow(drill().window), nullptr);
            EXPECT_EQ(drill().asked(), asked);
        }
}

TEST_P(EveryDrill, JudgesOnceWhateverIsPressedInThePause)
{
    QWidget& window = open();
    answer(window, true);
    const std::string asked = drill().asked();
    duringPause([&] {
        EXPECT_EQ(shownWindow("Bravo") != nullptr, !isQuizOfNouns());
        pressEverything(window);
        EXPECT_EQ(drill().asked(), asked);
    });
    click(window, drill().check);
    EXPECT_EQ(fake.waits, 1);
    EXPECT_EQ(settings.AnsweredCount, isQuizOfNouns() ? 0 : 1);
    EXPECT_NE(drill().asked(), asked);
    expectNoFeedback();
    for (const QLineEdit* const box : window.findChildren<QLineEdit*>())
        EXPECT_NE(box->text(), "x");
}

class ScoringDrill : public EveryDrill {};

TEST_P(ScoringDrill, AsksTheSameAgainAfterAWrongAnswer)
{
    QWidget& window = open();
    for (int wrong = 1; wrong <= 2; ++wrong) {
        const std::string asked = drill().asked();
        answer(window, false);
        duringPause([&] {
            EXPECT_NE(shownWindow("Wrong"), nullptr);
            pressEverything(window);
        });
        click(window, drill().check);
        expectNoFeedback();
        EXPECT_EQ(settings.AnsweredCount, wrong);
        EXPECT_EQ(drill().asked(), asked);
    }
    answer(window, true);
    const std::string asked = drill().asked();
    click(window, drill().check);
    EXPECT_EQ(settings.AnsweredCount, 3);
    EXPECT_EQ(settings.RightCount, 1);
    EXPECT_NE(drill().asked(), asked);
}

class TypedDrill : public EveryDrill {};

TEST_P(TypedDrill, TakesAHeldEnterForOne)
{
    QWidget& window = open();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    answer(window, true);
    press(window, Qt::Key_Return);
    for (int i = 0; i < 3; ++i)
        QApplication::sendEvent(window.focusWidget(), &held);
    EXPECT_EQ(settings.AnsweredCount, 1);
}

class BoxDrill : public EveryDrill {};

TEST_P(BoxDrill, GreysTheBoxAnsweredRightAndAsksTheNext)
{
    QWidget& window = open();
    QLineEdit& first = askedBox(window);
    answer(window, true);
    const QString typed = first.text();
    press(window, Qt::Key_Return);
    EXPECT_EQ(first.text(), typed);
    EXPECT_EQ(first.palette().color(QPalette::Base), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(first.palette().color(QPalette::Text), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(tests::label(window, "ScoreLabel"), " 100% ");
    EXPECT_NE(&askedBox(window), &first);
    EXPECT_EQ(window.focusWidget(), &askedBox(window));
    answer(window, false);
    press(window, Qt::Key_Return);
    EXPECT_EQ(askedBox(window).text(), "");
    EXPECT_EQ(window.focusWidget(), &askedBox(window));
    EXPECT_EQ(tests::label(window, "ScoreLabel"), " 50% ");
}

TEST_P(BoxDrill, ShowsTheAnswerInRedForOnePauseWithoutCounting)
{
    QWidget& window = open();
    QLineEdit& box = askedBox(window);
    answer(window, true);
    const QString right = box.text();
    box.clear();
    const auto expectShownOnce = [&](const std::function<void()>& ask) {
        fake.waits = 0;
        duringPause([&] {
            EXPECT_EQ(box.text(), right);
            EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
            pressEverything(window);
            EXPECT_EQ(box.text(), right);
        });
        type(window, "b");
        ask();
        EXPECT_EQ(fake.waits, 1);
        EXPECT_EQ(box.text(), "");
        EXPECT_EQ(box.palette().color(QPalette::Text), drill().colour);
        EXPECT_EQ(window.focusWidget(), &box);
    };
    expectShownOnce([&] { type(window, "/"); });
    expectShownOnce([&] { type(window, "?"); });
    for (const char* const button : drill().others)
        expectShownOnce([&] { click(window, button); });
    EXPECT_EQ(settings.AnsweredCount, 0);
    EXPECT_EQ(&askedBox(window), &box);
}

TEST_P(BoxDrill, ForgetsTheAnswerShownWhenItIsLeftAndOpenedAnew)
{
    QWidget& window = open();
    duringPause([&] {
        click(window, drill().quit);
        tests::doubleClickRow(control<QListWidget>(shown(drill().back), drill().list), 0);
        EXPECT_EQ(askedBox(window).text(), "");
        type(window, "a");
    });
    type(window, "?");
    EXPECT_EQ(askedBox(window).text(), "a");
}

TEST_P(BoxDrill, SendsTheFocusBackToTheBoxAsked)
{
    QWidget& window = open();
    QTest::mouseClick(&control<QLineEdit>(window, QLatin1String(drill().box) + "4"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(window.focusWidget(), &askedBox(window));
    type(window, "a");
    EXPECT_EQ(askedBox(window).text(), "a");
}

std::string nameOf(const testing::TestParamInfo<Drill>& info)
{
    return info.param.window;
}

INSTANTIATE_TEST_SUITE_P(Of, EveryDrill, testing::ValuesIn(Drills), nameOf);
INSTANTIATE_TEST_SUITE_P(Of, ScoringDrill, testing::ValuesIn(Drills.begin(), Drills.begin() + 5), nameOf);
INSTANTIATE_TEST_SUITE_P(Of, TypedDrill, testing::ValuesIn(Drills.begin(), Drills.begin() + 4), nameOf);
INSTANTIATE_TEST_SUITE_P(Of, BoxDrill, testing::ValuesIn(Drills.begin(), Drills.begin() + 3), nameOf);

} // namespace
