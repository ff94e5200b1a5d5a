// Random clicks, keys, window closings and menu choices over the whole program, pauses included. The events
// come from a seeded generator, so that a failure mostly comes again (Qt's own timers differ from run to
// run):
//     MORVANTI_MONKEY_EVENTS=1000000 MORVANTI_MONKEY_SEED=7 build/sanitize/shell_window_tests
//     --gtest_filter=Monkey*

#include "nouns/declension_drill.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"
#include "tests/support/window_test.h"
#include "verbdrills/conjugation_drill.h"
#include "vocabulary/vocabulary_tester.h"

#include <random>

namespace {

class Monkey : public tests::WindowTest {
protected:
    // Most pauses are filled with further events.
    Monkey()
    {
        fake.whileWaiting = [this] {
            QApplication::processEvents();
            for (int i = below(6); i > 0 && depth_ < 4; --i)
                act();
        };
    }

    int below(qsizetype count) { return static_cast<int>(random_() % static_cast<quint64>(count)); }

    // One run of the program, until it ends or the events are used up.
    void run()
    {
        for (const auto& left : std::filesystem::directory_iterator("."))
            std::filesystem::remove_all(left);
        std::filesystem::copy(MORVANTI_DATA, ".");
        // A list of few words is tested: one with more than the test's tables hold ends the program.
        std::filesystem::rename("nature.lst", "vr-vcab.lst");
        fake.exitStatus.reset();
        shell::settings = {};
        start();
        while (!fake.exitStatus && events_ > 0)
            act();
    }

    void act()
    {
        if (events_-- <= 0 || fake.exitStatus)
            return;
        ++depth_;
        if (const auto dismiss = std::exchange(fake.dismissMessage, {}))
            dismiss();
        QWidget* const modal = QApplication::activeModalWidget();
        actOn(modal == nullptr ? anyWindow() : *modal);
        QApplication::processEvents();
        --depth_;
    }

    QWidget& anyWindow()
    {
        QWidgetList shown = QApplication::topLevelWidgets();
        shown.removeIf([](const QWidget* window) {
            return !window->isVisible() || window->objectName().isEmpty() || window->inherits("QMenu");
        });
        // Qt's own order changes from run to run.
        std::ranges::sort(shown, {}, &QWidget::objectName);
        return *shown.at(below(shown.size()));
    }

    void actOn(QWidget& window)
    {
        const int choice = below(200);
        if (choice < 80)
            clickSomewhere(window);
        else if (choice < 90)
            answerRightly(window);
        else if (choice < 180)
            pressSomething(window.focusWidget() == nullptr ? window : *window.focusWidget());
        else if (choice == 180)
            window.close();
        else if (auto* const item = anyPart<QAction>(window))
            item->trigger();
    }

    // A control or an item of a window; nullptr where it has none.
    template <typename Part>
    Part* anyPart(const QWidget& window)
    {
        QList<Part*> parts = window.findChildren<Part*>();
        parts.removeIf(
            [&](auto* part) { return !part->isVisible() || !part->isEnabled() || !mayTouch(*part); });
        return parts.isEmpty() ? nullptr : parts.at(below(parts.size()));
    }

    // Folders are left alone, so that nothing is written outside the test's own. What ends the program is
    // seldom touched, so that a run becomes long.
    bool mayTouch(const QObject& control)
    {
        static const QStringList endings = {"ExitButton", "FileExit", "VerbMangerCancel"};
        for (const QObject* part = &control; part != nullptr; part = part->parent())
            if (part->objectName() == QLatin1String("FHDirBox"))
                return false;
        return !endings.contains(control.objectName()) || below(8) == 0;
    }

    void clickSomewhere(const QWidget& window)
    {
        auto* const target = anyPart<QWidget>(window);
        if (target == nullptr)
            return;
        const auto action = below(4) == 0 ? QTest::MouseDClick : QTest::MouseClick;
        const QPoint place(below(target->width() + 1), below(target->height() + 1));
        QTest::mouseEvent(action, target, Qt::LeftButton, {}, place);
    }

    // So that drills come to their end as well.
    static void answerRightly(QWidget& window)
    {
        const QMap<QString, std::string> answers = {{"Conjugation", verbdrills::conjugationDrill.CorrectForm},
                                                    {"Declination", nouns::declensionDrill.ExpectedAnswer},
                                                    {"PronounSingular", nouns::pronounDrill.ExpectedAnswer},
                                                    {"Vcabtester", vocabulary::expectedAnswer()}};
        if (answers.contains(window.objectName()) && window.focusWidget() != nullptr)
            tests::answer(window, QString::fromStdString(answers[window.objectName()]));
    }

    void pressSomething(QWidget& target)
    {
        using namespace Qt;
        static const QList<Key> keys = {Key_Return, Key_Escape, Key_Tab,  Key_Backtab, Key_Down,   Key_Up,
                                        Key_Space,  Key_F1,     Key_Home, Key_Left,    Key_Delete, Key_Slash};
        const char letter = static_cast<char>('a' + below(26));
        if (!mayTouch(target))
            return;
        if (below(12) == 0)
            QTest::keyClick(&target, letter, AltModifier);
        else if (below(3) == 0)
            QTest::sendKeyEvent(QTest::Click, &target, Key_unknown, QString(letter), NoModifier);
        else
            QTest::keyClick(&target, keys.at(below(keys.size())), below(20) == 0 ? AltModifier : NoModifier);
    }

    int events_ = qEnvironmentVariable("MORVANTI_MONKEY_EVENTS", "20000").toInt();
    int depth_ = 0;
    std::mt19937 random_{qEnvironmentVariable("MORVANTI_MONKEY_SEED", "1").toUInt()};
};

TEST_F(Monkey, NeitherCrashesNorHangsTheProgram)
{
    while (events_ > 0)
        run();
}

} // namespace
