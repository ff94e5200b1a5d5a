#pragma once

#include "platform/fault.h"
#include "vocabulary/vocabulary_file.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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

    /// The list and its test as they were before the first pending change.
    std::pair<VocabularyList, VocabularyTester> Unchanged;
};

inline VocabularyEditor vocabularyEditor;

/// True when something was accepted, added or deleted since the last load or save.
bool changesArePending();

/// Takes back whatever is pending: the list, and how far its test had come, are as at the last load or save.
void discardChanges();

/// Begins a new list without words.
void beginNewList();

/// Puts the list of a file in the place of the one in memory, in both tables, sets `CurrentWord` to 0 and
/// clears the counts of the test. No change is pending then. Where the file is refused, the list in memory is
/// as it was.
std::optional<LoadFault> loadList(const std::filesystem::path& path);

/// Resets the tester and begins to test the default list, "vr-vcab.lst" of the working folder. Returns what
/// the learner is to be told. Where the default list is missing, which is passed over silently, or refused,
/// the list in memory is tested.
std::string openDefaultList();

/// Where a save goes unless another file is chosen: the list's own file or, beside one of another program
/// that is not written with tabs, one of that name in the program's own format. Empty for a new list.
std::filesystem::path fileToSave();

/// True where a save would replace a file that the list was neither read from nor saved to, or one of another
/// program's format.
bool wouldReplaceAnotherFile(const std::filesystem::path& path);

/// Replaces a file with the words of the working table, and sets `CurrentWord` to 0. The table then holds
/// what was written: ">" where commas were, but in a list with tabs commas, even where ">" stood for them
/// since an earlier save. No change is pending then. Where that fails, the file and the list are as they
/// were, and the fault is returned.
std::optional<platform::Fault> saveList(const std::filesystem::path& path);

/// Puts a record in the place of number 1 to `WordCount`. A field that is as it stands in the working table
/// stays in both tables: a comma that shows as ">" since a save is still a comma for the test. Where none
/// differs, nothing changes.
void acceptWord(int number, const WordRecord& record);

/// Appends a record; false where the list is full.
bool addWord(const WordRecord& record);

/// Takes the record of number 1 to `WordCount` out and closes the gap, in the counts of the test as well.
void deleteWord(int number);

} // namespace vocabulary
