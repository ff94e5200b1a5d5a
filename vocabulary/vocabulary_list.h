#pragma once

#include "platform/fault.h"
#include "platform/table.h"

#include <cstdint>
#include <filesystem>
#include <optional>
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

extern VocabularyList vocabularyList;

/// What kept a list from being loaded whole.
struct LoadFaults {
    /// Why the file was refused: it cannot be read, or is too long. The list in memory is as it was.
    std::optional<platform::Fault> unreadable;
    std::optional<platform::Fault> tooLong;

    /// A last record that the end of the file cuts off, and that was left out.
    std::optional<platform::Fault> cutOff;

    bool refused() const { return unreadable || tooLong; }

    /// What the learner is to be told; empty where all went well.
    std::string message() const;
};

/// Puts the list of a file in the place of the one in memory, in both tables, and sets `CurrentWord` to 0. No
/// change is pending then.
LoadFaults loadList(const std::filesystem::path& path);

/// Replaces a file with the working table, in which ">" then stands where commas were, and sets `CurrentWord`
/// to 0. No change is pending then. Where that fails, the file and the list are as they were, and the fault
/// is returned.
std::optional<platform::Fault> saveList(const std::filesystem::path& path);

} // namespace vocabulary
