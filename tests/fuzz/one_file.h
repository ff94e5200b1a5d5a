#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

/// Reads one file, whatever its bytes, and ends the process where a promise of its reader is broken. Every
/// target defines it; libFuzzer and the replay of the corpus call it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Before each file: a fake platform, and the random generator seeded with a fixed number. Writes the file
/// into a folder that the process removes when it ends. Returns its path.
std::filesystem::path beginWithFile(const std::uint8_t* data, std::size_t size);

/// Prints the promise and ends the process where it is not kept.
void require(bool kept, std::string_view promise);

} // namespace fuzz
