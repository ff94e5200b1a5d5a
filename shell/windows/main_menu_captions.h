#pragma once

#include "shell/language_texts.h"

#include <span>

namespace shell {

/// The captions of the main window's buttons, menus and items. Their spelling, accents and the blank at the
/// end of one French item are meant.
std::span<const Caption> mainMenuCaptions();

} // namespace shell
