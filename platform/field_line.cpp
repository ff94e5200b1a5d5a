#include "platform/field_line.h"

#include <algorithm>

namespace platform {

namespace {

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t';
}

std::string written(std::string_view field)
{
    std::string text(field);
    std::ranges::replace_if(
        text, [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    if (!needsQuotes(text) && text.find(',') == text.npos)
        return text;
    std::ranges::replace(text, '"', '\'');
    return '"' + text + '"';
}

} // namespace

bool needsQuotes(std::string_view field)
{
    return !field.empty() && (isBlank(field.front()) || isBlank(field.back()) || field.front() == '"');
}

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
