#include "app/feedback_windows.h"

namespace app {

namespace {

template <typename Window>
void announceIn(std::unique_ptr<Window>& window)
{
    if (!window)
        window = std::make_unique<Window>();
    window->announce();
}

} // namespace

void FeedbackWindows::announce(bool right)
{
    if (right)
        announceIn(bravo_);
    else
        announceIn(wrong_);
}

void FeedbackWindows::hide()
{
    if (bravo_)
        bravo_->hide();
    if (wrong_)
        wrong_->hide();
}

} // namespace app
