#pragma once

#include "platform/moment.h"

#include <filesystem>

namespace progress {

/// Gives a damaged database another name, "progress.db.damaged-20241004T120000" in local time, and so its
/// "-wal" and "-shm"; nothing that has such a name is replaced. False where that cannot be done.
bool setAside(const std::filesystem::path& file, platform::Moment moment);

} // namespace progress
