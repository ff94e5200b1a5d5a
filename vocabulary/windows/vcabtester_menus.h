#pragma once

#include "shell/language_texts.h"

#include <span>

class QMenuBar;

namespace vocabulary {

class Vcabtester;

/// Fills the tester's menu bar, still without captions, and joins its items to what they request.
void makeVcabtesterMenus(QMenuBar& menuBar, Vcabtester& tester);

std::span<const shell::Caption> vcabtesterMenuCaptions();

} // namespace vocabulary
