#pragma once

#include "vocabulary/vocabulary_list.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vocabulary {

inline constexpr char Tab = '\t';
inline constexpr char Semicolon = ';';

/// The words of a text as spreadsheets and flash-card programs write it: a line each, the fields divided by
/// tabs or semicolons, the word first, its translation second and a hint third; what follows is passed over,
/// and so are lines that begin with "#", be it after blanks, and lines without any field or separator. Blanks
/// around a field are not part of it. A field in double quotes may hold them, separators, line ends, which
/// are read as blanks, and double quotes, which are doubled there.
///
/// No more than one past `MostWordsRead`. Empty optional where no more lines have a separator than lack one,
/// and with semicolons where a comma stands outside quotes, and not all lines that have any have as many:
/// such a text is in another format.
std::optional<std::vector<WordRecord>> readSeparatedList(std::string_view text, char separator);

/// The text of these records with tabs, a line each, with CR LF at its end, each `asWrittenWithTabs`. It
/// reads back as it was: a word that would be taken for a comment or for another format stands in double
/// quotes, and a list whose commas alone make three fields of every line begins with a comment.
std::string tabListOf(std::span<const WordRecord> records);

/// The record with a blank in the place of every tab and every line end.
WordRecord asWrittenWithTabs(WordRecord record);

} // namespace vocabulary
