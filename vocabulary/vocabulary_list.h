#pragma once

#include "platform/table.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace vocabulary {

/// The most words that a list holds.
inline constexpr int MostWords = 300;

/// The most words that are read of a file with more than a list holds, which can be divided. One with still
/// more is only refused.
inline constexpr int MostWordsRead = 15'000;

/// One word of a list: the word itself, what it means, and a hint such as its gender and genitive.
struct WordRecord {
    std::string word;
    std::string translation;
    std::string hint;

    bool operator==(const WordRecord&) const = default;
};

/// The fields in the order of a file.
using WordField = std::string WordRecord::*;
inline constexpr std::array<WordField, 3> WordFields = {&WordRecord::word, &WordRecord::translation,
                                                        &WordRecord::hint};

/// The list in memory, by word number 1 to `WordCount`. There is one, `vocabularyList`; assigning `{}`
/// empties it.
struct VocabularyList {
    using Words = platform::Table<WordRecord, MostWords + 1>;

    /// The words as they were read or last edited; the tester asks these.
    Words Loaded;

    /// The editor's copies. Where commas were at a save, ">" stands in them until a list is read.
    Words Working;

    std::int16_t WordCount = 0;

    /// The word that the tester asks, 1 to `WordCount`. 0 since the list was read or saved: the test then
    /// goes on at its beginning.
    std::int16_t CurrentWord = 0;

    /// The file that the list was read from or saved to; empty for a new list.
    std::filesystem::path File;

    /// True where the file is in a format that a save would not keep: a save asks before it replaces that.
    bool FileIsForeign = false;
};

inline VocabularyList vocabularyList;

} // namespace vocabulary
