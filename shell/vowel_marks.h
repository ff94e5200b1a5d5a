#pragma once

#include <string>
#include <string_view>

namespace shell {

/// The mark after a long vowel, as lists and tables write it.
inline constexpr char LengthMark = ':';

/// Takes the marks out of a stem, in one pass that passes over what follows a mark: of two marks side by side
/// the second stays.
std::string StripOutColons(std::string_view stem);

/// Whether long vowels are marked: `ShowVowelLength` is true.
bool marksAreShown();

/// The letters of a text, without any mark.
std::string withoutMarks(std::string_view text);

/// A stem as the lists keep it: with its marks where `ShowVowelLength` is true, else without.
std::string stemAsShown(std::string_view stem);

/// Appends a text of the tables with `mark` in place of every ":".
void appendMarked(std::string& form, std::string_view text, std::string_view mark);

/// Sets `VowelMark` before a noun or verb drill: ":" where `ShowVowelLength` is exactly 1, else "". The menu
/// stores true as -1, so that in normal use the mark is emptied here and the generators set it.
void setVowelMarkForDrill();

/// Sets `VowelMark` before forms are generated: ":" where `ShowVowelLength` is true. It never empties it.
void setVowelMarkWhereShown();

/// Sets `VowelMark` at start, and when the option is switched: ":" where `ShowVowelLength` is true, "" where
/// it is false.
void setVowelMarkAsShown();

} // namespace shell
