#include "app/common_windows.h"

namespace app {

void whenLeft(shell::Window& window, const Step& next)
{
    hideWhenLeft(window);
    QObject::connect(&window, &shell::Window::left, &window, next);
}

void hideWhenLeft(shell::Window& window)
{
    QObject::connect(&window, &shell::Window::left, &window, &QWidget::hide);
}

void CommonWindows::joinDrill(shell::DrillWindow& window, const Step& next)
{
    mainMenu_.endFirstSteps();
    QObject::connect(&window, &shell::DrillWindow::answerJudged, &window,
                     [this](bool right) { announce(right); });
    QObject::connect(&window, &shell::DrillWindow::left, &window, [this, &window, next] {
        const Hourglass hourglass;
        leaveDrill(window);
        drillIsLeft();
        next();
    });
}

void CommonWindows::leaveDrill(QWidget& window)
{
    shell::leaveDrill();
    bravo_.hide();
    wrong_.hide();
    window.hide();
    if (drillHidden_)
        drillHidden_();
}

void CommonWindows::drillIsLeft() const
{
    if (drillLeft_)
        drillLeft_();
}

void CommonWindows::announce(bool right)
{
    if (right)
        bravo_->announce();
    else
        wrong_->announce();
}

} // namespace app
