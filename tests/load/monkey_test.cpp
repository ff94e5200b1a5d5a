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

#include <algorithm>
#include <map>
#include <random>
#include <utility>

namespace {

int numberFrom(const char* variable, int otherwise)
{
    return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : otherwise;
}

class Monkey : public tests::WindowTest {
protected:
    int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    template <typename Value>
    Value anyOf(const QList<Value>& values)
    {
        return values.at(below(static_cast<int>(values.size())));
    }

    // A list of few words is tested: one with more than the test's tables hold ends the program.
    static void putSamples()
    {
        for (const auto& left : std::filesystem::directory_iterator("."))
            std::filesystem::remove_all(left);
        for (const auto& sample : std::filesystem::directory_iterator(MORVANTI_DATA))
            if (sample.is_regular_file() && sample.path().filename() != "vr-vcab.lst")
                std::filesystem::copy(sample, ".");
        std::filesystem::rename("nature.lst", "vr-vcab.lst");
    }

    // One run of the program, until it ends or the events are used up. Most pauses are filled with further
    // events.
    void run()
    {
        putSamples();
        fake.exitStatus.reset();
        fake.messages.clear();
        shell::settings = {};
        fake.whileWaiting = [this] {
            QApplication::processEvents();
            for (int i = below(6); i > 0 && depth_ < 4; --i)
                act();
        };
        start();
        while (!fake.exitStatus && events_ > 0)
            act();
        fake.whileWaiting = nullptr;
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
        QWidgetList shown;
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (window->isVisible() && !window->objectName().isEmpty() && !qobject_cast<QMenu*>(window))
                shown << window;
        // Qt's own order changes from run to run.
        std::ranges::sort(shown, {}, &QWidget::objectName);
        return *anyOf(shown);
    }

    void actOn(QWidget& window)
    {
        const int choice = below(100);
        if (choice < 40)
            clickSomewhere(window);
        else if (choice < 45)
            answerRightly(window);
        else if (choice < 90)
            pressSomething(window);
        else if (choice < 98)
            chooseFromMenu(window);
        else if (below(4) == 0)
            window.close();
    }

    // Folders are left alone, so that nothing is written outside the test's own. What ends the program is
    // seldom touched, so that a run becomes long.
    bool mayTouch(const QObject& control)
    {
        for (const QObject* part = &control; part != nullptr; part = part->parent())
            if (part->objectName() == QLatin1String("FHDirBox"))
                return false;
        const QStringList endings = {"ExitButton", "FileExit", "VerbMangerCancel"};
        return !endings.contains(control.objectName()) || below(8) == 0;
    }

    void clickSomewhere(QWidget& window)
    {
        QWidgetList targets;
        for (QWidget* const widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && mayTouch(*widget))
                targets << widget;
        if (targets.isEmpty())
            return;
        QWidget* const target = anyOf(targets);
        const QPoint place(below(std::max(1, target->width())), below(std::max(1, target->height())));
        if (below(4) == 0)
            QTest::mouseDClick(target, Qt::LeftButton, Qt::NoModifier, place);
        else
            QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, place);
    }

    // So that drills come to their end as well.
    static void answerRightly(QWidget& window)
    {
        const std::map<QString, std::string> answers = {
            {"Conjugation", verbdrills::conjugationDrill.CorrectForm},
            {"Declination", nouns::declensionDrill.ExpectedAnswer},
            {"PronounSingular", nouns::pronounDrill.ExpectedAnswer},
            {"Vcabtester", vocabulary::expectedAnswer()}};
        const auto answer = answers.find(window.objectName());
        if (answer != answers.end() && window.focusWidget() != nullptr)
            tests::answer(window, QString::fromStdString(answer->second));
    }

    void pressSomething(QWidget& window)
    {
        using namespace Qt;
        static const QList<Key> keys = {
            Key_Return, Key_Enter, Key_Escape, Key_Tab,  Key_Backtab, Key_Down,  Key_Up,       Key_Space,
            Key_F1,     Key_End,   Key_Home,   Key_Left, Key_Delete,  Key_Slash, Key_PageDown, Key_Question};
        QWidget* const target = window.focusWidget() == nullptr ? &window : window.focusWidget();
        if (!mayTouch(*target))
            return;
        const char letter = static_cast<char>('a' + below(26));
        if (below(12) == 0)
            QTest::keyClick(target, letter, Qt::AltModifier);
        else if (below(3) == 0)
            QTest::sendKeyEvent(QTest::Click, target, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        else
            QTest::keyClick(target, anyOf(keys), below(20) == 0 ? Qt::AltModifier : Qt::NoModifier);
    }

    void chooseFromMenu(QWidget& window)
    {
        QList<QAction*> items;
        for (QAction* const item : window.findChildren<QAction*>())
            if (mayTouch(*item) && item->isEnabled() && item->menu() == nullptr &&
                !item->objectName().isEmpty())
                items << item;
        if (!items.isEmpty())
            anyOf(items)->trigger();
    }

    int events_ = numberFrom("MORVANTI_MONKEY_EVENTS", 20000);
    int depth_ = 0;
    std::mt19937 random_{static_cast<unsigned>(numberFrom("MORVANTI_MONKEY_SEED", 1))};
};

TEST_F(Monkey, NeitherCrashesNorHangsTheProgram)
{
    while (events_ > 0)
        run();
}

} // namespace
