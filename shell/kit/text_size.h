#pragma once

namespace shell {

/// Gives all windows, menus and messages type of `looks.TextSize` percent of the desktop's own. At 100
/// percent the desktop's font is left alone, or given back where it was changed.
void applyTextSize();

/// Sets `looks.TextSize` to one of `TextSizes`, applies it at once, and keeps it for the next start.
void chooseTextSize(int percent);

} // namespace shell
