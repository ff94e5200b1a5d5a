#pragma once

class QMenuBar;

namespace vocabulary {

/// Fills the tester's menu bar: every menu and item under its object name, still without captions.
void makeVcabtesterMenus(QMenuBar& menuBar);

} // namespace vocabulary
