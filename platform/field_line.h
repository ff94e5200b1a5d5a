#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace platform {

/// True where a field is read as it stands only in double quotes: it begins or ends with a blank, or begins
/// with a double quote.
bool needsQuotes(std::string_view field);

/// The line, without its end, from which `FieldReader` reads these fields again: with commas between them,
/// and in double quotes where a field needs them. A line end within a field becomes a blank, and a double
/// quote that no field can hold a single one.
std::string lineOfFields(std::initializer_list<std::string_view> fields);

} // namespace platform
