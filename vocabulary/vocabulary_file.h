#pragma once

#include "platform/fault.h"
#include "vocabulary/vocabulary_list.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vocabulary {

/// What kept the words of a file from being read whole.
struct LoadFault {
    enum class Kind {
        Unreadable, ///< there is no such file, or none that can be read
        TooLong,    ///< it holds more than `MostWords` words, or more than a reader takes
        CutOff,     ///< its last record lacks a field or two and was left out
    };

    Kind kind;
    platform::Fault fault;

    /// True where nothing of the file was taken.
    bool refused() const { return kind != Kind::CutOff; }

    /// What the learner is to be told.
    std::string message() const { return fault.message(); }
};

/// What a file holds: three fields a word, of which each ends at a comma or at the end of its line, and in
/// which ">" stands for a comma. Blanks around a field are not part of it, but those in double quotes are,
/// and so are commas there: a field that begins with a double quote ends at the first one that has only
/// blanks between itself and a comma or the line's end. A file that is refused has no records.
struct VocabularyFile {
    std::vector<WordRecord> records;
    std::optional<LoadFault> fault;
};

VocabularyFile readVocabularyFile(const std::filesystem::path& path);

/// Replaces a file with these records, each `asWritten`; each reads back as it was, but that ">" reads back
/// as a comma and a line end as a blank. Where that fails, the file is as it was, and the fault is returned.
std::optional<platform::Fault> writeVocabularyFile(const std::filesystem::path& path,
                                                   std::span<const WordRecord> records);

/// The record with ">" in the place of every comma, and a blank in that of every line end.
WordRecord asWritten(WordRecord record);

} // namespace vocabulary
