#pragma once

#include <memory>

namespace shell {

/// A stay somewhere: in a drill that runs, in a window that is open. Who pauses takes a copy before and asks
/// it afterwards; a copy is the same stay, so that when one ends, all are over. One that never began is over,
/// too.
class Stay {
public:
    Stay() = default;

    static Stay begun()
    {
        Stay stay;
        stay.lasts_ = std::make_shared<bool>(true);
        return stay;
    }

    bool lasts() const { return lasts_ && *lasts_; }

    void end()
    {
        if (lasts_)
            *lasts_ = false;
    }

private:
    std::shared_ptr<bool> lasts_;
};

} // namespace shell
