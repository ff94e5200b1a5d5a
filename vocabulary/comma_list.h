#pragma once

#include "vocabulary/vocabulary_list.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vocabulary {

/// What a text holds in the program's own format: three fields a word, of which each ends at a comma or at
/// the end of its line, and in which ">" stands for a comma. Blanks around a field are not part of it, but
/// those in double quotes are, and so are commas there: a field that begins with a double quote ends at the
/// first one that has only blanks between itself and a comma or the line's end.
struct CommaList {
    /// No more than one past `MostWordsRead`.
    std::vector<WordRecord> records;

    /// The line of a last record that lacks a field or two and was left out; 0 where there is none.
    int cutOffLine = 0;

    /// True where every line that was read and is not empty makes three fields, as the program writes them; a
    /// last one after others may be cut off after its second.
    bool hasThreeFieldsALine = true;
};

CommaList readCommaList(std::string_view text);

/// The text of these records, a line each, with CR LF at its end.
std::string commaListOf(std::span<const WordRecord> records);

/// The record with ">" in the place of every comma, and a blank in that of every line end.
WordRecord asWrittenWithCommas(WordRecord record);

} // namespace vocabulary
