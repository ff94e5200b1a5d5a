#pragma once

#include "app/on_demand.h"
#include "shell/kit/drill_window.h"
#include "shell/windows/delay_interval.h"
#include "shell/windows/feedback_window.h"
#include "shell/windows/main_menu.h"

#include <QGuiApplication>

#include <functional>
#include <utility>

namespace app {

/// Shows the hourglass pointer while one window gives way to another.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
};

/// What comes once a window is left.
using Step = std::function<void()>;

/// Leaving the window hides it and takes the next step.
void whenLeft(shell::Window& window, const Step& next);

/// Leaving the window only hides it.
void hideWhenLeft(shell::Window& window);

/// The windows that every subject shares: the main window, from which all start and to which they come back,
/// the feedback windows and the one that sets the delay.
class CommonWindows {
public:
    shell::MainMenu& mainMenu() { return mainMenu_; }
    void toMainMenu() { mainMenu_.showInMainWindowState(); }
    void openDelayInterval() { delayInterval_->open(); }

    /// At this request the main window gives way to another one, which opens as long as its navigation lives.
    template <typename Shown>
    void opens(void (shell::MainMenu::*request)(), const QObject* navigation, OnDemand<Shown>& window);

    /// Joins a drill's window, which is made when it is first opened: the first steps are over then. Its
    /// judged answers are announced; leaving it leaves the drill and takes the next step.
    void joinDrill(shell::DrillWindow& window, const Step& next);

    /// Leaves the running drill and hides its window, with the feedback that may be up.
    void leaveDrill(QWidget& window);

    /// Sets what is done when an exercise is left, and not only put aside. An empty step: nothing.
    void whenDrillIsLeft(Step step) { drillLeft_ = std::move(step); }

    /// Sets what is done when an exercise is left or put aside.
    void whenDrillIsHidden(Step step) { drillHidden_ = std::move(step); }

    /// An exercise was left. Those that are joined as drills say so by themselves.
    void drillIsLeft() const;

private:
    void announce(bool right);

    Step drillLeft_;
    Step drillHidden_;
    shell::MainMenu mainMenu_;
    OnDemand<shell::DelayInterval> delayInterval_{&hideWhenLeft};
    OnDemand<shell::Bravo> bravo_;
    OnDemand<shell::Wrong> wrong_;
};

template <typename Shown>
void CommonWindows::opens(void (shell::MainMenu::*request)(), const QObject* navigation,
                          OnDemand<Shown>& window)
{
    QObject::connect(&mainMenu_, request, navigation, [this, &window] {
        mainMenu_.hide();
        window->open();
    });
}

} // namespace app
