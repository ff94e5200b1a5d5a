#include "platform/code_page.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace platform {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// The same mark in UTF-16.
constexpr std::string_view LowByteFirst = "\xFF\xFE";
constexpr std::string_view HighByteFirst = "\xFE\xFF";

// clang-format off
// Windows-1252, 80 to 9F; every other byte is its own code point, and so are the five that it leaves empty.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

constexpr bool isContinuation(std::uint8_t byte)
{
    return (byte & 0xC0U) == 0x80U;
}

// The bounds of a lead byte's first continuation byte: they shut out overlong forms and surrogates.
struct Sequence {
    std::size_t length = 0;
    std::uint8_t lowest = 0x80;
    std::uint8_t highest = 0xBF;
};

constexpr Sequence sequenceOf(std::uint8_t lead)
{
    if (lead < 0x80)
        return {1};
    if (lead < 0xC2)
        return {};
    if (lead < 0xE0)
        return {2};
    if (lead < 0xF0)
        return {3, static_cast<std::uint8_t>(lead == 0xE0 ? 0xA0 : 0x80),
                static_cast<std::uint8_t>(lead == 0xED ? 0x9F : 0xBF)};
    if (lead < 0xF5)
        return {4, static_cast<std::uint8_t>(lead == 0xF0 ? 0x90 : 0x80),
                static_cast<std::uint8_t>(lead == 0xF4 ? 0x8F : 0xBF)};
    return {};
}

// The length of the character that the bytes begin with, 0 where they begin with none.
std::size_t characterLength(std::string_view bytes)
{
    const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const Sequence sequence = sequenceOf(at(0));
    if (sequence.length <= 1)
        return sequence.length;
    if (bytes.size() < sequence.length || at(1) < sequence.lowest || at(1) > sequence.highest)
        return 0;
    for (std::size_t i = 2; i < sequence.length; ++i)
        if (!isContinuation(at(i)))
            return 0;
    return sequence.length;
}

void appendUtf8(std::string& text, char32_t point)
{
    const auto byte = [&](char32_t value) { text.push_back(static_cast<char>(value)); };
    if (point < 0x80)
        return byte(point);
    if (point < 0x800) {
        byte(0xC0 | point >> 6);
    } else if (point < 0x10000) {
        byte(0xE0 | point >> 12);
        byte(0x80 | (point >> 6 & 0x3F));
    } else {
        byte(0xF0 | point >> 18);
        byte(0x80 | (point >> 12 & 0x3F));
        byte(0x80 | (point >> 6 & 0x3F));
    }
    byte(0x80 | (point & 0x3F));
}

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

// The units of UTF-16 that stand in these bytes, a byte too many at the end left out.
std::u16string unitsOf(std::string_view bytes, bool lowByteFirst)
{
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<std::uint8_t>(bytes[i]);
        const auto second = static_cast<std::uint8_t>(bytes[i + 1]);
        units.push_back(static_cast<char16_t>(lowByteFirst ? second << 8U | first : first << 8U | second));
    }
    return units;
}

bool isUtf16(std::string_view bytes)
{
    return (bytes.starts_with(LowByteFirst) || bytes.starts_with(HighByteFirst)) &&
           bytes.find('\0') != bytes.npos;
}

std::string fromUtf16(std::string_view bytes)
{
    constexpr char32_t replacement = 0xFFFD;
    const std::u16string units = unitsOf(bytes.substr(LowByteFirst.size()), bytes.starts_with(LowByteFirst));
    std::string text;
    text.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        const char32_t unit = units[i];
        const char32_t next = i + 1 < units.size() ? units[i + 1] : 0;
        if (isHighSurrogate(unit) && isLowSurrogate(next)) {
            appendUtf8(text, 0x10000 + ((unit & 0x3FF) << 10) + (next & 0x3FF));
            ++i;
        } else {
            appendUtf8(text, isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit);
        }
    }
    return text;
}

} // namespace

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t length = characterLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string fromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<std::uint8_t>(character);
        const bool upperControl = byte >= 0x80 && byte < 0xA0;
        appendUtf8(text, upperControl ? UpperControls.at(byte - 0x80U) : char32_t{byte});
    }
    return text;
}

std::string decoded(std::string_view bytes)
{
    if (isUtf16(bytes))
        return fromUtf16(bytes);
    if (!isUtf8(bytes))
        return fromWindows1252(bytes);
    if (bytes.starts_with(ByteOrderMark))
        bytes.remove_prefix(ByteOrderMark.size());
    return std::string(bytes);
}

std::string encoded(std::string_view text)
{
    std::string bytes(text.starts_with(ByteOrderMark) ? ByteOrderMark : std::string_view{});
    return bytes.append(text);
}

} // namespace platform
