// What all drills have in common: an answer counts once, a hint does not count, a pause can be left, and
// boxes are asked in the order that is set.

#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/verb_question.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <QCheckBox>

#include <algorithm>
#include <set>

namespace {

using namespace tests;
using shell::settings;
using std::to_string;

struct Drill {
    const char* window;
    const char* opener;
    const char* back; // where one comes to on leaving
    const char* check;
    const char* quit;
    std::vector<const char*> others; // buttons that do nothing in a pause
    const char* box;                 // with the number that is asked
    std::string (*asked)();          // tells one question from another
    void (*answerRightly)(QWidget&); // without checking it
    QColor colour = {};              // of what is typed after a hint
};

void chooseFirstForm(QWidget& quiz)
{
    verbdrills::verbQuiz.QuizRow = 1;
    verbdrills::identifyForm();
    clickRow(list(quiz, "QuizConjList"), 0);
    clickRow(list(quiz, "QuizTenseList"), 0);
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

// clang-format off
// First the drills with a box for each form, then the one with a single line, then the quizzes.
const std::vector<Drill> Drills = {
    {"Conjugation", "ConjugationButton", "ConjugationChoose", "Ccontinue", "Cquit", {"ConjQuestion"}, "ConjText",
        [] { return to_string(verbdrills::conjugationDrill.PersonIndex); },
        [](QWidget& drill) { typeText(drill, verbdrills::conjugationDrill.CorrectForm); }, Qt::blue},
    {"Declination", "DeclensionButton", "DeclinationChoose", "Continue", "DeclQuitButton", {"DeclQuestion"}, "DeclText",
        [] { return to_string(nouns::declensionDrill.CurrentCaseIndex); },
        [](QWidget& drill) { typeText(drill, nouns::declensionDrill.ExpectedAnswer); }, Qt::black},
    {"PronounSingular", "PronounButton", "PronounChooser", "PronounOK", "PronounCancel", {}, "Pronoun",
        [] { return to_string(nouns::pronounDrill.CurrentCell); },
        [](QWidget& drill) { typeText(drill, nouns::pronounDrill.ExpectedAnswer); }, Qt::black},
    {"Vcabtester", "VocabularyButton", "MainMenu", "VcabtesterOK", "VcabtesterCancel", {}, "",
        [] { return to_string(vocabulary::vocabularyList.CurrentWord); },
        [](QWidget& drill) { typeText(drill, vocabulary::expectedAnswer()); }},
    {"Probatio", "QuizButton", "MainMenu", "QuizOK", "QuizCancel", {"QuizQuestion", "QuizSkip"}, "",
        [] { return to_string(verbdrills::verbQuiz.QuizRow); }, chooseFirstForm},
    {"NounQuiz", "FileNounQuiz", "MainMenu", "NQOK", "NQCancel", {}, "", nouns::drawnIndexes, tickRightCases},
};
// clang-format on

class DrillWindows : public WindowTest {
protected:
    void SetUp() override
    {
        copySample("verbs.cfg");
        copySample("nouns.cfg");
        writeFile("vr-vcab.lst", "rosa,rose,f.\r\nre:x,king,m.\r\n");
        start();
        settings.QuizTenseInclude.fill(platform::FlagTrue);
    }

    QWidget& open(const Drill& drill, int row = 0)
    {
        if (drill.back == std::string("MainMenu"))
            return WindowTest::open(drill.opener, drill.window);
        return openRow(drill.opener, drill.back, row, drill.window);
    }

    static QLineEdit& askedBox(QWidget& window, const Drill& drill)
    {
        return box(window, drill.box, std::stoi(drill.asked()));
    }
};

struct Order {
    int drill; // in the table above
    int row;   // of its chooser
    const char* cases;
    const char* questions;
    bool drawn;
    std::vector<int> boxes;
};

// clang-format off
const Order Orders[] = {
    // Persons.
    {0, 0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5}},
    {0, 1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5}},
    // Cases of both numbers.
    {1, 0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    {1, 3, "NAGDAb", "Sequential", false, {0, 3, 1, 2, 4, 5, 8, 6, 7, 9}},
    {1, 1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    // Cases of three persons or genders: the reflexive has no nominative, and the order of the menu draws nothing.
    {2, 3, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 11, 14, 12, 13, 15}},
    {2, 0, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 14, 12, 13, 15}},
    {2, 1, "NGDAAb", "Random",     false, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
    {2, 0, "NGDAAb", "random",     true,  {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15}},
};
// clang-format on

TEST_F(DrillWindows, AskEachBoxOnceInTheOrderThatIsSetAndThenOtherForms)
{
    for (const auto& [number, row, cases, questions, drawn, boxes] : Orders) {
        const Drill& drill = Drills.at(static_cast<std::size_t>(number));
        settings.CaseOrder = cases;
        settings.QuestionOrder = questions;
        QWidget& window = open(drill, row);
        std::set<QString> rounds;
        for (int round = 0; round < 4; ++round) {
            std::vector<int> asked;
            QString forms;
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                asked.push_back(std::stoi(drill.asked()));
                QLineEdit& box = askedBox(window, drill);
                EXPECT_EQ(box.text(), "");
                EXPECT_TRUE(box.isEnabled());
                drill.answerRightly(window);
                forms += box.text() + ' ';
                press(window, Qt::Key_Return);
            }
            EXPECT_EQ(std::ranges::is_sorted(asked), !drawn && std::ranges::is_sorted(boxes));
            if (drawn)
                std::ranges::sort(asked);
            EXPECT_EQ(asked, boxes) << drill.window << ' ' << cases << ' ' << questions;
            rounds.insert(forms);
        }
        EXPECT_GT(rounds.size(), 1U) << drill.window;
        EXPECT_EQ(settings.RightCount, 4 * static_cast<int>(boxes.size())) << drill.window;
    }
}

class EveryDrill : public DrillWindows, public testing::WithParamInterface<Drill> {
protected:
    QWidget& open() { return DrillWindows::open(drill()); }

    static const Drill& drill() { return GetParam(); }
    static bool keepsScore() { return drill().asked != nouns::drawnIndexes; }
    static QLineEdit& askedBox(QWidget& window) { return DrillWindows::askedBox(window, drill()); }

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
    for (const bool right : {true, false})
        for (const auto& leave : waysToLeave(drill().quit)) {
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

TEST_P(EveryDrill, JudgesOnceWhateverIsPressedInThePauseAndMovesOnAfterARightAnswer)
{
    QWidget& window = open();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    int judged = 0;
    for (const bool right : keepsScore() ? std::vector{false, false, true} : std::vector{true}) {
        answer(window, right);
        const std::string asked = drill().asked();
        duringPause([&] {
            EXPECT_EQ(shownWindow(right ? "Bravo" : "Wrong") != nullptr, keepsScore());
            pressEverything(window);
            EXPECT_EQ(drill().asked(), asked);
        });
        click(window, drill().check);
        QApplication::sendEvent(window.focusWidget(), &held);
        EXPECT_EQ(fake.waits, ++judged);
        EXPECT_EQ(settings.AnsweredCount, keepsScore() ? judged : 0);
        EXPECT_EQ(settings.RightCount, keepsScore() && right);
        EXPECT_EQ(drill().asked() != asked, right);
        expectNoFeedback();
        for (const QLineEdit* const box : window.findChildren<QLineEdit*>())
            EXPECT_NE(box->text(), "x");
    }
}

class BoxDrill : public EveryDrill {};

// What is typed after a click on another box comes into the one that is asked.
TEST_P(BoxDrill, GreysTheBoxAnsweredRightAndAsksTheNext)
{
    QWidget& window = open();
    QLineEdit& first = askedBox(window);
    QTest::mouseClick(&box(window, drill().box, 4), Qt::LeftButton);
    QApplication::processEvents();
    answer(window, true);
    const QString typed = first.text();
    duringPause([&] { pressEverything(window); });
    press(window, Qt::Key_Return);
    EXPECT_EQ(first.text(), typed);
    EXPECT_EQ(first.palette().color(QPalette::Base), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(first.palette().color(QPalette::Text), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(label(window, "ScoreLabel"), " 100% ");
    EXPECT_EQ(window.focusWidget(), &askedBox(window));
}

// Left while the answer is shown, it begins anew without it.
TEST_P(BoxDrill, ShowsTheAnswerInRedForOnePauseWithoutCounting)
{
    QWidget& window = open();
    QLineEdit& box = askedBox(window);
    answer(window, true);
    const QString right = box.text();
    std::vector<std::function<void()>> asking = {[&] { type(window, "/"); }, [&] { type(window, "?"); }};
    for (const char* const button : drill().others)
        asking.push_back([&, button] { click(window, button); });
    for (const auto& ask : asking) {
        box.setText("b");
        fake.waits = 0;
        duringPause([&] {
            EXPECT_EQ(box.text(), right);
            EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
            pressEverything(window);
            EXPECT_EQ(box.text(), right);
        });
        ask();
        EXPECT_EQ(fake.waits, 1);
        EXPECT_EQ(box.text(), "");
        EXPECT_EQ(box.palette().color(QPalette::Text), drill().colour);
        EXPECT_EQ(window.focusWidget(), &box);
    }
    EXPECT_EQ(settings.AnsweredCount, 0);
    EXPECT_EQ(&askedBox(window), &box);
    duringPause([&] {
        click(window, drill().quit);
        EXPECT_EQ(askedBox(open()).text(), "");
        type(window, "a");
    });
    type(window, "?");
    EXPECT_EQ(askedBox(window).text(), "a");
}

INSTANTIATE_TEST_SUITE_P(Of, EveryDrill, testing::ValuesIn(Drills));
INSTANTIATE_TEST_SUITE_P(Of, BoxDrill, testing::ValuesIn(Drills.begin(), Drills.begin() + 3));

} // namespace
