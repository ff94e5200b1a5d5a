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
#include <span>

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

// clang-format off
// The drill, the row of its chooser, the order of the cases and of the questions, whether boxes are drawn, and these.
using Order = std::tuple<int, int, const char*, const char*, bool, std::vector<int>>;
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

class EveryDrill : public WindowTest {
protected:
    EveryDrill()
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

    static void answer(const Drill& drill, QWidget& window, bool right)
    {
        right ? drill.answerRightly(window) : type(window, "x");
    }

    // Everything that a learner may press while an answer is judged or shown.
    static void pressEverything(const Drill& drill, QWidget& window)
    {
        type(window, "x?/");
        press(window, Qt::Key_Return);
        click(window, drill.check);
        for (const char* const button : drill.others)
            click(window, button);
    }
};

TEST_F(EveryDrill, AskEachBoxOnceInTheOrderThatIsSetAndThenOtherForms)
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

TEST_F(EveryDrill, IsLeftAtOnceInAPauseAndDoesNotMoveOn)
{
    for (const Drill& drill : Drills)
        for (const bool right : {true, false})
            for (const auto& leave : waysToLeave(drill.quit)) {
                QWidget& window = open(drill);
                answer(drill, window, right);
                const std::string asked = drill.asked();
                duringPause([&] {
                    leave(window);
                    EXPECT_FALSE(shownWindow("Bravo") || shownWindow("Wrong")) << drill.window;
                    EXPECT_NE(shownWindow(drill.back), nullptr) << drill.window;
                });
                click(window, drill.check);
                EXPECT_FALSE(shownWindow("Bravo") || shownWindow("Wrong")) << drill.window;
                EXPECT_EQ(shownWindow(drill.window), nullptr);
                EXPECT_EQ(drill.asked(), asked) << drill.window;
            }
}

// A box that was answered right turns grey. What is typed after a click on another comes into the one asked.
TEST_F(EveryDrill, JudgesOnceWhateverIsPressedInThePauseAndMovesOnAfterARightAnswer)
{
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    for (const Drill& drill : Drills) {
        const bool keepsScore = drill.window != std::string("NounQuiz");
        QWidget& window = open(drill);
        fake.waits = settings.AnsweredCount = settings.RightCount = 0;
        int judged = 0;
        for (const bool right : keepsScore ? std::vector{false, false, true} : std::vector{true}) {
            const bool hasBoxes = *drill.box != '\0';
            QLineEdit* const asksIn = hasBoxes ? &askedBox(window, drill) : nullptr;
            if (hasBoxes)
                QTest::mouseClick(&box(window, drill.box, 4), Qt::LeftButton);
            QApplication::processEvents();
            answer(drill, window, right);
            const std::string asked = drill.asked();
            duringPause([&] {
                EXPECT_EQ(shownWindow(right ? "Bravo" : "Wrong") != nullptr, keepsScore) << drill.window;
                pressEverything(drill, window);
                EXPECT_EQ(drill.asked(), asked) << drill.window;
            });
            click(window, drill.check);
            QApplication::sendEvent(window.focusWidget(), &held);
            EXPECT_EQ(fake.waits, ++judged) << drill.window;
            EXPECT_EQ(settings.AnsweredCount, keepsScore ? judged : 0) << drill.window;
            EXPECT_EQ(settings.RightCount, keepsScore && right) << drill.window;
            EXPECT_EQ(drill.asked() != asked, right) << drill.window;
            EXPECT_FALSE(shownWindow("Bravo") || shownWindow("Wrong")) << drill.window;
            for (const QLineEdit* const box : window.findChildren<QLineEdit*>()) {
                const bool grey = right && box == asksIn;
                EXPECT_EQ(box->text().isEmpty(), !grey) << drill.window;
                EXPECT_EQ(box->palette().color(QPalette::Base) == QColor(0x80, 0x80, 0x80), grey);
                EXPECT_EQ(box->palette().color(QPalette::Text) == QColor(0xC0, 0xC0, 0xC0), grey);
            }
            EXPECT_TRUE(!hasBoxes || window.focusWidget() == &askedBox(window, drill)) << drill.window;
            EXPECT_TRUE(!hasBoxes || !right || label(window, "ScoreLabel") == " 33% ") << drill.window;
        }
    }
}

// Left while the answer is shown, it begins anew without it.
TEST_F(EveryDrill, ShowsTheAnswerInRedForOnePauseWithoutCounting)
{
    for (const Drill& drill : std::span(Drills).first(3)) {
        QWidget& window = open(drill);
        QLineEdit& box = askedBox(window, drill);
        answer(drill, window, true);
        const QString right = box.text();
        std::vector<const char*> ways = {"/", "?"};
        ways.insert(ways.end(), drill.others.begin(), drill.others.end());
        for (const QString way : ways) {
            box.setText("b");
            fake.waits = 0;
            duringPause([&] {
                EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
                pressEverything(drill, window);
                EXPECT_EQ(box.text(), right);
            });
            way.size() == 1 ? type(window, way) : click(window, way);
            EXPECT_EQ(fake.waits, 1);
            EXPECT_EQ(box.text(), "");
            EXPECT_EQ(box.palette().color(QPalette::Text), drill.colour);
            EXPECT_EQ(window.focusWidget(), &box);
        }
        EXPECT_EQ(settings.AnsweredCount, 0);
        EXPECT_EQ(&askedBox(window, drill), &box);
        duringPause([&] {
            click(window, drill.quit);
            EXPECT_EQ(askedBox(open(drill), drill).text(), "");
            type(window, "a");
        });
        type(window, "?");
        EXPECT_EQ(askedBox(window, drill).text(), "a");
    }
}

} // namespace
