#pragma once

#include "vocabulary/vocabulary_list.h"

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

extern VocabularyEditor vocabularyEditor;

/// True when something was accepted, added or deleted since the last load or save.
bool changesArePending();
void forgetPendingChanges();

/// Begins a new list without words.
void beginNewList();

/// Puts a record in the place of number 1 to `WordCount`, then copies the loaded table into the working one.
/// Each edit stores its texts as a file can give them back, and has the list tested from its beginning.
void acceptWord(int number, const WordRecord& record);

/// Appends a record; false where the list is full.
bool addWord(const WordRecord& record);

/// Takes the record of number 1 to `WordCount` out and closes the gap.
void deleteWord(int number);

} // namespace vocabulary
