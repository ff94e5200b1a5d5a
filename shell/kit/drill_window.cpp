#include "shell/kit/drill_window.h"

#include "shell/pause.h"

namespace shell {

DrillWindow::DrillWindow(std::string_view name, std::string_view activeName, std::string_view exerciseType)
    : Window(name, activeName), exerciseType_(exerciseType)
{
    closeOnEscape();
    registerDrill(exerciseType_, *this);
}

DrillWindow::~DrillWindow()
{
    unregisterDrill(exerciseType_);
}

bool DrillWindow::canAnswer() const
{
    return isVisible() && !pausing();
}

} // namespace shell
