#pragma once

#include "progress/store.h"

namespace progress {

/// Opens the store in a file, which is made where it is missing. At the first call the plugin is loaded from
/// beside the program or from the installed library folder; where it is not there, no store can be had. This
/// is the opener for `Keeper`; the stores must go before the QApplication does.
Opened openStore(const std::filesystem::path& file, Access access);

} // namespace progress
