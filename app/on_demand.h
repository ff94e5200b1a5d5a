#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace app {

/// A window that is made when it is first asked for, and lives until the program ends.
template <typename Shown>
class OnDemand {
public:
    /// `join` connects the window with the others as soon as it is made.
    explicit OnDemand(std::function<void(Shown&)> join = [](Shown&) {}) : join_(std::move(join)) {}

    /// The same, where a navigation's own procedure joins the window.
    template <typename Navigation>
    OnDemand(Navigation* navigation, void (Navigation::*join)(Shown&))
        : OnDemand([navigation, join](Shown& window) { (navigation->*join)(window); })
    {
    }

    Shown& operator*()
    {
        if (!window_) {
            window_ = std::make_unique<Shown>();
            join_(*window_);
        }
        return *window_;
    }
    Shown* operator->() { return &**this; }

    /// Hides the window where it was made already.
    void hide()
    {
        if (window_)
            window_->hide();
    }

private:
    std::function<void(Shown&)> join_;
    std::unique_ptr<Shown> window_;
};

} // namespace app
