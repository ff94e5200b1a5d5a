#include "app/common_windows.h"

#include "shell/drill.h"

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

void CommonWindows::leaveDrill(QWidget& window)
{
    shell::leaveDrill();
    bravo_.hide();
    wrong_.hide();
    window.hide();
}

void CommonWindows::announce(bool right)
{
    if (right)
        bravo_->announce();
    else
        wrong_->announce();
}

} // namespace app
