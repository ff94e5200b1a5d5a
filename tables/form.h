#pragma once

#include "shell/form_parts.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tables {

/// A form of a word, or its name, with ":" after every long vowel, and where in it the stem ends and the
/// ending begins. Empty: there is no such form.
struct Form {
    std::string text;
    std::size_t endingAt = 0;

    std::string_view stem() const { return std::string_view(text).substr(0, endingAt); }
    std::string_view ending() const { return std::string_view(text).substr(endingAt); }

    bool operator==(const Form&) const = default;
};

Form formOf(const shell::FormParts& parts);

/// The form as the tables show it: without marks where `ShowVowelLength` is not true. Of two marks side by
/// side in a stem one stays, as in the lists.
Form asShown(const Form& form);

} // namespace tables
