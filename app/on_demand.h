#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace app {

/// A window that is made when it is first asked for, and lives until the program ends.
template <typename Window>
class OnDemand {
public:
    using Join = std::function<void(Window&)>;

    /// `join` connects the window with the others as soon as it is made.
    explicit OnDemand(Join join = [](Window&) {}) : join_(std::move(join)) {}

    Window& operator*()
    {
        if (!window_) {
            window_ = std::make_unique<Window>();
            join_(*window_);
        }
        return *window_;
    }
    Window* operator->() { return &**this; }

    /// Hides the window where it was made already.
    void hide()
    {
        if (window_)
            window_->hide();
    }

private:
    Join join_;
    std::unique_ptr<Window> window_;
};

} // namespace app
