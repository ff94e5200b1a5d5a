#pragma once

#include <string>
#include <string_view>

namespace shell {

/// The mark after a long vowel, as lists and tables write it.
inline constexpr char LengthMark = ':';

/// Takes the marks out of a stem, in one pass that passes over what follows a mark: of two marks side by side
/// the second is meant to stay.
std::string StripOutColons(std::string_view stem);

/// A stem as the lists keep it: with its marks where `ShowVowelLength` is true, else without.
std::string stemAsShown(std::string_view stem);

/// Appends a text of the tables with `mark` in place of every ":".
void appendMarked(std::string& form, std::string_view text, std::string_view mark);

} // namespace shell
