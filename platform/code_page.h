#pragma once

#include <string>
#include <string_view>

namespace platform {

/// True when the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isUtf8(std::string_view bytes);

/// Windows-1252 bytes as UTF-8. The five bytes without a character become U+FFFD.
std::string fromWindows1252(std::string_view bytes);

/// The text of a file: UTF-8 where the bytes are UTF-8 (a byte order mark is skipped), else Windows-1252.
std::string decoded(std::string_view bytes);

} // namespace platform
