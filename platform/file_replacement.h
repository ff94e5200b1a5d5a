#pragma once

#include "platform/fault.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace platform {

/// Puts a file of these bytes in the place of `path`, or makes it anew. The bytes are written beside the
/// final name, under one that no other program writes to, brought to disk and renamed into place: a crash, a
/// full disk or a read-only folder leaves the old file whole. A link stays, and the file that it names is
/// replaced or made; a folder, a pipe or a device is refused. Returns the fault that kept it from being done.
std::optional<Fault> replaceFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace platform
