// What all drills have in common: an answer counts once, a hint does not count, a pause can be left, and
// boxes are asked in the order that is set.

#include "tests/windows/every_drill.h"

#include <set>

namespace {

using namespace tests;

// clang-format off
// The drill, the row of its chooser, the order of the cases and of the questions, whether boxes are drawn, and these.
using Order = std::tuple<const Drill&, int, const char*, const char*, bool, std::vector<int>>;
const Order Orders[] = {
    {Conjugation, 0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5}},
    {Conjugation, 1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5}},
    // Cases of both numbers.
    {Declension,  0, "NGDAAb", "Sequential", false, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    {Declension,  3, "NAGDAb", "Sequential", false, {0, 3, 1, 2, 4, 5, 8, 6, 7, 9}},
    {Declension,  1, "NGDAAb", "Random",     true,  {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    // Cases of three persons or genders: the reflexive has no nominative, and the order of the menu draws nothing.
    {Pronoun,     3, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 11, 14, 12, 13, 15}},
    {Pronoun,     0, "NAGDAb", "Sequential", false, {1, 4, 2, 3, 5, 6, 9, 7, 8, 10, 14, 12, 13, 15}},
    {Pronoun,     1, "NGDAAb", "Random",     false, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
    {Pronoun,     0, "NGDAAb", "random",     true,  {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 15}},
};
// clang-format on

// The eye goes down, or on to the next column: beside each row stands its name.
TEST_F(EveryDrill, AskEachBoxOnceInTheOrderThatIsSetAndThenOtherForms)
{
    for (const auto& [drill, row, cases, questions, drawn, boxes] : Orders) {
        SCOPED_TRACE(drill.window.toStdString() + ' ' + cases + ' ' + questions);
        settings.CaseOrder = cases;
        settings.QuestionOrder = questions;
        QWidget& window = open(drill, row);
        std::set<QString> rounds;
        for (int round = 0; round < 4; ++round) {
            std::vector<int> asked;
            QString forms;
            QPoint place;
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                asked.push_back(std::stoi(drill.asked()));
                QLineEdit& box = askedBox(window, drill);
                EXPECT_TRUE(box.text().isEmpty() && box.isEnabled());
                const QPoint before = std::exchange(place, box.mapTo(&window, QPoint()));
                EXPECT_TRUE(drawn || i == 0 || before.x() < place.x() || before.y() < place.y());
                fillIn(drill, window, true);
                forms += box.text() + ' ';
                press(window, Qt::Key_Return);
            }
            EXPECT_EQ(std::ranges::is_sorted(asked), !drawn && std::ranges::is_sorted(boxes));
            if (drawn)
                std::ranges::sort(asked);
            EXPECT_EQ(asked, boxes);
            rounds.insert(forms);
        }
        for (const QLabel* const name : window.findChildren<QLabel*>())
            EXPECT_TRUE(!name->buddy() || std::abs(middleOf(*name) - middleOf(*name->buddy())) < 2);
        EXPECT_GT(rounds.size(), 1U);
        EXPECT_EQ(settings.RightCount, 4 * static_cast<int>(boxes.size()));
    }
}

TEST_F(EveryDrill, IsLeftAtOnceInAPauseAndDoesNotMoveOn)
{
    for (const Drill& drill : Drills)
        for (const bool right : {true, false})
            for (const auto& leave : waysToLeave(drill.quit)) {
                SCOPED_TRACE(drill.window.toStdString());
                QWidget& window = open(drill);
                fillIn(drill, window, right);
                const std::string asked = drill.asked();
                duringPause([&] {
                    leave(window);
                    EXPECT_FALSE(judgementIsShown());
                    EXPECT_NE(shownWindow(drill.back), nullptr);
                });
                click(window, drill.check);
                EXPECT_FALSE(judgementIsShown() || window.isVisible());
                EXPECT_EQ(drill.asked(), asked);
            }
}

bool endsAtItsEdge(QLabel& label)
{
    const QImage edge = label.grab({label.width() - 4, 0, 4, label.height()}).toImage();
    QImage bare = edge;
    bare.fill(edge.pixel(0, 0));
    return edge != bare;
}

// A box that was answered right turns grey. What is typed after a click on another comes into the one asked.
TEST_F(EveryDrill, JudgesOnceWhateverIsPressedInThePauseAndMovesOnAfterARightAnswer)
{
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    for (const Drill& drill : Drills) {
        SCOPED_TRACE(drill.window.toStdString());
        const bool keepsScore = drill.window != "NounQuiz";
        const bool hasBoxes = !drill.box.isEmpty();
        QWidget& window = open(drill);
        fake.waits = settings.AnsweredCount = settings.RightCount = 0;
        int judged = 0;
        for (const bool right : keepsScore ? std::vector{false, false, true} : std::vector{true}) {
            QLineEdit* const asksIn = hasBoxes ? &askedBox(window, drill) : nullptr;
            if (hasBoxes)
                QTest::mouseClick(&box(window, drill.box, 4), Qt::LeftButton);
            QApplication::processEvents();
            EXPECT_TRUE(drill.window != "Conjugation" || label(window, "Ctransl4").isEmpty());
            fillIn(drill, window, right);
            const std::string asked = drill.asked();
            duringPause([&] {
                EXPECT_EQ(shownWindow(right ? "Bravo" : "Wrong") != nullptr, keepsScore);
                pressEverything(drill, window);
                EXPECT_EQ(drill.asked(), asked);
            });
            click(window, drill.check);
            QApplication::sendEvent(window.focusWidget(), &held);
            EXPECT_EQ(fake.waits, ++judged);
            EXPECT_EQ(settings.AnsweredCount, keepsScore ? judged : 0);
            EXPECT_EQ(settings.RightCount, keepsScore && right);
            EXPECT_EQ(drill.asked() != asked, right);
            EXPECT_FALSE(judgementIsShown());
            for (const QLineEdit* const box : window.findChildren<QLineEdit*>()) {
                EXPECT_EQ(isGrey(*box), right && box == asksIn);
                EXPECT_EQ(box->text().isEmpty(), !isGrey(*box));
            }
            EXPECT_TRUE(!hasBoxes || window.focusWidget() == &askedBox(window, drill));
            EXPECT_TRUE(!hasBoxes || !right || label(window, "ScoreLabel") == " 33% ");
            for (QLabel* const score : window.findChildren<QLabel*>(QRegularExpression("Score")))
                EXPECT_TRUE(score->text().isEmpty() || endsAtItsEdge(*score));
        }
    }
}

// As an input method does that puts letters together.
void commit(const QWidget& window, const QString& letters)
{
    QInputMethodEvent event;
    event.setCommitString(letters);
    QApplication::sendEvent(window.focusWidget(), &event);
}

// What was typed before Enter is judged once it stands in its box; the rest goes on from there, unless it is
// wrong.
TEST_F(EveryDrill, KeepsWhatIsTypedInAPauseForTheBoxThatIsAskedNextUnlessItIsLeft)
{
    for (const Drill& drill : Drills) {
        if (drill.window == "Probatio" || drill.window == "NounQuiz")
            continue;
        QWidget& window = open(drill);
        const auto text = [&] { return static_cast<QLineEdit*>(window.focusWidget())->text(); };
        for (const bool right : {false, true}) {
            fillIn(drill, window, right);
            duringPause([&] {
                press(window, Qt::Key_Return);
                commit(window, "a");
                QTest::keyClick(window.focusWidget(), 'b', Qt::ControlModifier | Qt::AltModifier);
                type(window, "?");
                press(window, Qt::Key_Backspace);
                EXPECT_EQ(label(window, "WhyLabel"), right ? "" : "<u>x</u>");
                for (const QScrollBar* const bar : window.findChildren<QScrollBar*>())
                    EXPECT_FALSE(bar->isVisible());
            });
            QTest::keyClick(window.focusWidget(), Qt::Key_Y, Qt::AltModifier);
            press(window, Qt::Key_Return);
            EXPECT_EQ(text(), "a");
            EXPECT_EQ(settings.AnsweredCount, right ? 4 : 1);
            EXPECT_EQ(label(window, "WhyLabel"), "");
            duringPause([&] {
                answer(window, right ? "c" : QString::fromStdString(drill.right(window)));
                type(window, "d");
            });
            fake.waits = 0;
            press(window, Qt::Key_Return);
            QApplication::processEvents();
            EXPECT_EQ(text(), right ? "" : "d");
            EXPECT_EQ(fake.waits, 2);
            fill(*static_cast<QLineEdit*>(window.focusWidget()), "");
        }
        duringPause([&] {
            type(window, "e");
            click(window, drill.quit);
        });
        fillIn(drill, window, false);
        press(window, Qt::Key_Return);
        EXPECT_EQ(static_cast<QLineEdit*>(open(drill).focusWidget())->text(), "");
        EXPECT_EQ(label(window, "WhyLabel"), "");
    }
}

TEST_F(EveryDrill, SaysWhyAnAnswerWasWrongUntilTheNextKeyAndHowFarOneIs)
{
    settings.CurrentLanguage = shell::language::German;
    QWidget& verbs = open(Conjugation, 5);
    EXPECT_EQ(label(verbs, "WhereLabel"), "Zeitform 1 von 11");
    answer(verbs, "es");
    EXPECT_EQ(label(verbs, "WhyLabel"), "<u>e</u>s &nbsp; Das ist die Endung einer anderen Person.");
    answer(verbs, "sumus");
    EXPECT_EQ(label(verbs, "WhyLabel"), "sum<u>u</u>s &nbsp; Das ist die Endung des anderen Numerus.");
    press(verbs, Qt::Key_Right);
    EXPECT_NE(label(verbs, "WhyLabel"), "");
    type(verbs, "s");
    EXPECT_EQ(label(verbs, "WhyLabel"), "");
    QWidget& persons = open(Pronoun);
    answer(persons, "tu");
    EXPECT_EQ(label(persons, "WhyLabel"), "<u>t</u>u");
    answer(persons, "mihi");
    EXPECT_TRUE(label(persons, "WhyLabel").endsWith("Das ist eine andere Form desselben Wortes."));
    QWidget& neuter = open(Declension, 5);
    const QString nominative = QString::fromStdString(Declension.right(neuter));
    answer(neuter, nominative);
    answer(neuter, nominative + "is");
    EXPECT_TRUE(label(neuter, "WhyLabel").endsWith(" &nbsp; Hier wird nur die Endung gefragt."));
    answer(neuter, "xis");
    EXPECT_EQ(label(neuter, "WhyLabel"), "<u>x</u>is");
    settings.QuestionOrder = shell::question_order::Random;
    for (const Drill& drill : {Declension, Pronoun})
        for (int number = 1; number < 4; ++number) {
            QWidget& window = number == 1 ? open(drill, 1) : shown(drill.window);
            EXPECT_EQ(label(window, "WhereLabel"),
                      QString("Form %1 von %2").arg(number).arg(drill.window == "Declination" ? 10 : 15));
            answer(window, QString::fromStdString(drill.right(window)));
        }
}

// Left while the answer is shown, it begins anew without it.
TEST_F(EveryDrill, ShowsTheAnswerInRedForOnePauseWithoutCounting)
{
    for (const Drill& drill : {Conjugation, Declension, Pronoun}) {
        QWidget& window = open(drill);
        QLineEdit& box = askedBox(window, drill);
        for (const QString& way : QStringList{"/", "?"} + drill.others) {
            box.setText("b");
            fake.waits = 0;
            duringPause([&] {
                EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::red));
                EXPECT_EQ(focusIn(window) == "DDummy", drill.window == "Declination");
                pressEverything(drill, window);
                EXPECT_EQ(box.text().toStdString(), drill.right(window));
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
