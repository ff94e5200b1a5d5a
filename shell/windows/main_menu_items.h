#pragma once

class QMenuBar;

namespace shell {

/// Fills the main window's menu bar: every menu and item under its object name, still without captions.
void makeMainMenuItems(QMenuBar& menuBar);

} // namespace shell
