#pragma once

#include "platform/fault.h"
#include "vocabulary/vocabulary_list.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vocabulary {

/// What a file holds: three fields a word, of which each ends at a comma or at the end of its line, and in
/// which ">" stands for a comma.
struct VocabularyFile {
    std::vector<WordRecord> records;

    /// Why the file cannot be read. There are no records then.
    std::optional<platform::Fault> unreadable;

    /// That the file holds more than `MostWords` words. There are no records then either.
    std::optional<platform::Fault> tooLong;

    /// A last record that lacks a field or two. It is not among the records.
    std::optional<platform::Fault> cutOff;
};

VocabularyFile readVocabularyFile(const std::filesystem::path& path);

/// A text as a field of a file can give it back. A ">" reads back as a comma, no field goes on in a second
/// line, and a field that has to stand in double quotes can hold none itself: they become apostrophes.
std::string storableText(std::string_view text);

/// The record with ">" in the place of every comma, as it is written.
WordRecord withoutCommas(WordRecord record);

/// The line of a file for a record without commas, with CR LF at its end. Fields that begin or end with a
/// blank, or begin with a double quote, stand in double quotes.
std::string recordLine(const WordRecord& record);

} // namespace vocabulary
