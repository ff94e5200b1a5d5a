#pragma once

#include "platform/fault.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace platform {

/// Puts a file of these bytes in the place of `path`, or makes it anew. The bytes are written beside the
/// final name, brought to disk and renamed into place: a crash, a full disk or a read-only folder leaves the
/// old file whole. Returns the fault that kept it from being done.
std::optional<Fault> replaceFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace platform
