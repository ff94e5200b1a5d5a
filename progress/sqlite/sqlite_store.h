#pragma once

#include "progress/store.h"

namespace progress {

/// Opens the store in an SQLite file, and makes what is missing in it. It needs a QCoreApplication, and must
/// be closed before that goes. `begin` waits for another writer for a twentieth of a second at the most.
Opened openSqliteStore(const std::filesystem::path& file, Access access);

} // namespace progress
