#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace platform {

/// The line, without its end, from which `FieldReader` reads these fields again: with commas between them,
/// and in double quotes where a field needs them. A line end within a field becomes a blank, and a double
/// quote that no field can hold a single one.
std::string lineOfFields(std::initializer_list<std::string_view> fields);

} // namespace platform
