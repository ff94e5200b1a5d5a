#pragma once

#include <string_view>

namespace shell {

/// A form of a word in its two parts, with ":" after long vowels. Both are views of a list and of a grammar's
/// table: they hold until that list changes. Both empty: there is no such form.
struct FormParts {
    std::string_view stem;
    std::string_view ending;

    constexpr bool exist() const { return !stem.empty() || !ending.empty(); }
};

} // namespace shell
