#pragma once

class QFrame;
class QWidget;

namespace shell {

/// Places the frame that holds all controls of a small window. It fills the window; on a maximised one it
/// keeps its own size in the middle of the screen, a little to the left.
void placeBigFrame(const QWidget& window, QFrame& frame);

} // namespace shell
