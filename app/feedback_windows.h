#pragma once

#include "shell/windows/feedback_window.h"

#include <memory>

namespace app {

/// The two feedback windows, each made when it is first needed.
class FeedbackWindows {
public:
    void announce(bool right);
    void hide();

private:
    std::unique_ptr<shell::Bravo> bravo_;
    std::unique_ptr<shell::Wrong> wrong_;
};

} // namespace app
