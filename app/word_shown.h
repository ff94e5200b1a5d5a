#pragma once

#include "tables/words.h"

#include <optional>

class QWidget;

namespace app {

/// The listed word that stands in a window: that of a drill, the chosen one of a list, in a quiz the one
/// whose form was solved. None where the form is still asked, and in other windows.
std::optional<tables::Word> wordShownIn(const QWidget& window);

} // namespace app
