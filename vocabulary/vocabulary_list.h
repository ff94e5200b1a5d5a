#pragma once

#include "platform/table.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace vocabulary {

/// The most words that a list holds.
inline constexpr int MostWords = 300;

/// One word of a list: the word itself, what it means, and a hint such as its gender and genitive.
struct WordRecord {
    std::string word;
    std::string translation;
    std::string hint;

    bool operator==(const WordRecord&) const = default;
};

/// The list in memory, by word number 1 to `WordCount`. There is one, `vocabularyList`; assigning `{}`
/// empties it.
struct VocabularyList {
    using Words = platform::Table<WordRecord, MostWords + 1>;

    /// The words as they were read or last edited; the tester asks these.
    Words Loaded;

    /// The editor's copies. From a save until they are next copied, ">" stands in them where commas were.
    Words Working;

    std::int16_t WordCount = 0;

    /// The word that the tester asks, 1 to `WordCount`. 0 where the list has changed since it was last
    /// tested: it is then to be tested from its beginning.
    std::int16_t CurrentWord = 0;

    /// The file that the list was read from or saved to; empty for a new list.
    std::filesystem::path File;
};

inline VocabularyList vocabularyList;

} // namespace vocabulary
