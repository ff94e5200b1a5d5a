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

    /// That of the frame.
    QSize sizeHint() const override;

protected:
    QFrame* frame() const { return frame_; }

    /// Shows the window, at first in the size of its frame, as far as the screen allows.
    void showFrame();

    /// Fits the window to what stands in the frame; a maximised one has no least size. It does so itself a
    /// little after a change.
    void fitFrame();

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeFrame();

    QFrame* frame_;
};

} // namespace shell
