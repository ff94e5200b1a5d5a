#pragma once

#include "shell/kit/window.h"

namespace shell {

/// Tells what the program is.
class About : public Window {
    Q_OBJECT

public:
    About();

    void open();
};

} // namespace shell
