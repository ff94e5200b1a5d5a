#pragma once

#include <string>
#include <string_view>

namespace platform {

/// True when the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF.
bool isUtf8(std::string_view bytes);

/// Windows-1252 bytes as UTF-8. The five bytes without a character become the control of the same number.
std::string fromWindows1252(std::string_view bytes);

/// The text of a file: UTF-8 where the bytes are UTF-8 (a byte order mark is skipped); UTF-16, as
/// spreadsheets write their "Unicode text", where they begin with its byte order mark and have a zero byte,
/// which no text of Windows-1252 has (half a pair of surrogates becomes U+FFFD); else Windows-1252.
std::string decoded(std::string_view bytes);

/// The bytes of a file that `decoded` gives back as this text, which is UTF-8: the text itself, with a byte
/// order mark before it where it begins with one of its own.
std::string encoded(std::string_view text);

} // namespace platform
