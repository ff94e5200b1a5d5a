#pragma once

#include <QColor>

namespace progress {

/// The accent colour of the palette, from pale for 0 to full for 1.
QColor shadeOf(double share);

/// Black or white, whichever is read better on a colour.
QColor readableOn(const QColor& colour);

/// The line around a square or a cell, which stands out from the ground of light and dark palettes.
QColor outlineColour();

} // namespace progress
