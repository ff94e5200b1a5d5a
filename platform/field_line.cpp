#include "platform/field_line.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::string_view BlanksAndQuote = " \t\"";

bool needsQuotes(std::string_view field)
{
    return !field.empty() && (BlanksAndQuote.find(field.front()) != std::string_view::npos ||
                              BlanksAndQuote.find(field.back()) != std::string_view::npos ||
                              field.find(',') != std::string_view::npos);
}

std::string written(std::string_view field)
{
    std::string text(field);
    std::ranges::replace_if(
        text, [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    if (!needsQuotes(text))
        return text;
    std::ranges::replace(text, '"', '\'');
    return '"' + text + '"';
}

} // namespace

std::string lineOfFields(std::initializer_list<std::string_view> fields)
{
    std::string line;
    std::string_view separator;
    for (const std::string_view field : fields) {
        line.append(separator).append(written(field));
        separator = ", ";
    }
    return line;
}

} // namespace platform
