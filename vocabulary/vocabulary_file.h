#pragma once

#include "platform/fault.h"
#include "vocabulary/vocabulary_list.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vocabulary {

/// How the name of a list in the program's own format ends, and that of one which is written with tabs.
inline constexpr std::string_view OwnEnding = ".lst";
inline constexpr std::string_view TabEnding = ".tsv";

/// What kept the words of a file from being read whole.
struct LoadFault {
    enum class Kind {
        Unreadable, ///< there is no such file, or none that can be read
        TooLong,    ///< it holds more than `MostWords` words, or more than a reader takes
        NoWords,    ///< it is KVTML, and no word in it has a translation
        CutOff,     ///< its end is missing: a last record that lacks something was left out
    };

    Kind kind;
    platform::Fault fault;

    /// How many words a file holds that is too long, but can be divided; else 0.
    int words = 0;

    /// What such a file lacks at its end, where it is cut off as well.
    std::optional<platform::Fault> loss{};

    /// True where nothing of the file was taken.
    bool refused() const { return kind != Kind::CutOff; }

    /// What the learner is to be told.
    std::string message() const { return fault.message(); }
};

/// What a file holds. A file that is refused has no records, but one that can be divided has them all.
struct VocabularyFile {
    std::vector<WordRecord> records;
    std::optional<LoadFault> fault;

    /// True where a save under the same name would not write what the file holds now.
    bool isForeign = false;
};

/// Reads a word list in one of four formats. What it holds tells which, not its name:
/// - the program's own where each line that is not empty makes three fields by its commas, whatever stands in
///   these, but for a last one after others that is cut off after its second; and where none of the others
///   fits;
/// - KVTML, the format of some flash-card programs, where it begins with "<" and has a tag "<kvtml";
/// - fields divided by tabs, or else by semicolons, where most lines have one that is not in quotes, not
///   counting empty lines and those that begin with "#". As semicolons also stand within the fields of our
///   own lists, each line that has any must have as many as the others where a comma stands outside quotes.
VocabularyFile readVocabularyFile(const std::filesystem::path& path);

/// What a reader of KVTML found: the words that have a translation, no more than one past `MostWordsRead`,
/// and the line where the text breaks off, 0 where it is whole.
struct KvtmlList {
    std::vector<WordRecord> records;
    int brokenLine = 0;
};

/// Sets the reader of KVTML; without one such files are read like any other text.
using KvtmlReader = std::function<KvtmlList(std::string_view text)>;
void useKvtmlReader(KvtmlReader reader);

/// Replaces a file with these records, each `asWritten`, divided by tabs where its name has the `TabEnding`
/// and in the program's own format elsewhere. Each reads back as it was, but that with commas ">" reads back
/// as a comma, a line end as a blank, and with tabs a tab or line end as a blank. Where that fails, the file
/// is as it was, and the fault is returned.
std::optional<platform::Fault> writeVocabularyFile(const std::filesystem::path& path,
                                                   std::span<const WordRecord> records);

/// True where a file of this name is written with tabs.
bool isWrittenWithTabs(const std::filesystem::path& path);

/// The record as a file of this name holds it.
WordRecord asWritten(const std::filesystem::path& path, const WordRecord& record);

} // namespace vocabulary
