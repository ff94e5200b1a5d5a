#pragma once

#include "shell/kit/window.h"

class QFrame;

namespace shell {

/// A small window whose controls all stand in one frame. The frame fills the window; on a maximised one it
/// keeps its own size in the middle of the screen, a little to the left.
class FramedWindow : public Window {
    Q_OBJECT

public:
    FramedWindow(std::string_view name, std::string_view activeName, std::string_view frame);

protected:
    QFrame* frame() const { return frame_; }

    /// Shows the window, at first in the size of its frame.
    void showFrame();

    /// To be called when what stands in the frame has changed.
    void fitFrame();

    void resizeEvent(QResizeEvent* event) override;

private:
    void placeFrame();

    QFrame* frame_;
};

} // namespace shell
