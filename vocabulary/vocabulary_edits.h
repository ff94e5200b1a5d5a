#pragma once

#include "platform/fault.h"
#include "vocabulary/vocabulary_file.h"
#include "vocabulary/vocabulary_list.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vocabulary {

/// What the file window is opened for.
namespace file_mode {
inline constexpr std::string_view Load = "LoadVCM";
inline constexpr std::string_view Save = "SaveVcm";
} // namespace file_mode

/// What the editor keeps beside the list. There is one, `vocabularyEditor`; assigning `{}` resets it.
struct VocabularyEditor {
    std::string FileMode;

    /// Changes made in all, and how many of them there were at the last load or save.
    int ChangeCount = 0;
    int SavedChangeCount = 0;
};

inline VocabularyEditor vocabularyEditor;

/// True when something was accepted, added or deleted since the last load or save.
bool changesArePending();
void forgetPendingChanges();

/// Begins a new list without words.
void beginNewList();

/// Puts the list of a file in the place of the one in memory, in both tables, and sets `CurrentWord` to 0. No
/// change is pending then. Where the file is refused, the list in memory is as it was.
std::optional<LoadFault> loadList(const std::filesystem::path& path);

/// Replaces a file with the working table, in which ">" then stands where commas were, and sets `CurrentWord`
/// to 0. No change is pending then. Where that fails, the file and the list are as they were, and the fault
/// is returned.
std::optional<platform::Fault> saveList(const std::filesystem::path& path);

/// Puts a record in the place of number 1 to `WordCount`, then copies the loaded table into the working one.
/// Each edit stores its texts as a file can give them back, and has the list tested from its beginning.
void acceptWord(int number, const WordRecord& record);

/// Appends a record; false where the list is full.
bool addWord(const WordRecord& record);

/// Takes the record of number 1 to `WordCount` out and closes the gap.
void deleteWord(int number);

} // namespace vocabulary
