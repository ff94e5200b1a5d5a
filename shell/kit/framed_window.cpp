#include "shell/kit/framed_window.h"

#include "shell/kit/text.h"

#include <QEvent>
#include <QFrame>
#include <QScreen>

#include <algorithm>

namespace shell {

FramedWindow::FramedWindow(std::string_view name, std::string_view activeName, std::string_view frame)
    : Window(name, activeName), frame_(new QFrame(this))
{
    frame_->setObjectName(fromUtf8(frame));
    frame_->installEventFilter(this);
}

QSize FramedWindow::sizeHint() const
{
    return frame_->sizeHint();
}

// The frame may have changed since the window was last seen: its size is sought anew.
void FramedWindow::showFrame()
{
    if (!isVisible())
        forgetSize();
    showInMainWindowState();
    placeFrame();
}

// The larger type of a maximised window leaves the size that it has in its normal state alone. With the type
// of that state the frame is laid out anew, and fitted again.
void FramedWindow::fitFrame()
{
    setMinimumSize(isMaximized() ? QSize(0, 0) : frame_->minimumSizeHint());
    placeFrame();
}

bool FramedWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == frame_ && event->type() == QEvent::LayoutRequest)
        fitFrame();
    return Window::eventFilter(watched, event);
}

void FramedWindow::resizeEvent(QResizeEvent* event)
{
    Window::resizeEvent(event);
    placeFrame();
}

// A frame nearly as large as the window is kept inside it.
void FramedWindow::placeFrame()
{
    if (!isMaximized()) {
        frame_->setGeometry(rect());
        return;
    }
    const QSize screenSize = screen()->geometry().size();
    const QSize frameSize = frame_->sizeHint().boundedTo(size());
    const auto left = static_cast<int>(screenSize.width() / 2.0 - frameSize.width() / 1.9); // sic
    const auto top = static_cast<int>(screenSize.height() / 2.0 - frameSize.height() / 2.0);
    frame_->setGeometry(std::clamp(left, 0, width() - frameSize.width()),
                        std::clamp(top, 0, height() - frameSize.height()), frameSize.width(),
                        frameSize.height());
}

} // namespace shell
