#include "shell/windows/big_frame.h"

#include <QFrame>
#include <QScreen>

#include <algorithm>

namespace shell {

// The divisor of the width is meant. A frame nearly as large as the window is kept inside it.
void placeBigFrame(const QWidget& window, QFrame& frame)
{
    if (!window.isMaximized()) {
        frame.setGeometry(window.rect());
        return;
    }
    const QSize screenSize = window.screen()->geometry().size();
    const QSize frameSize = frame.sizeHint().boundedTo(window.size());
    const auto left = static_cast<int>(screenSize.width() / 2.0 - frameSize.width() / 1.9);
    const auto top = static_cast<int>(screenSize.height() / 2.0 - frameSize.height() / 2.0);
    frame.setGeometry(std::clamp(left, 0, window.width() - frameSize.width()),
                      std::clamp(top, 0, window.height() - frameSize.height()), frameSize.width(),
                      frameSize.height());
}

} // namespace shell
