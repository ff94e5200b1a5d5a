#include "vocabulary/vocabulary_edits.h"

#include "vocabulary/vocabulary_file.h"

#include <algorithm>

namespace vocabulary {

VocabularyEditor vocabularyEditor;

namespace {

WordRecord storable(const WordRecord& record)
{
    return {storableText(record.word), storableText(record.translation), storableText(record.hint)};
}

void countChange()
{
    ++vocabularyEditor.ChangeCount;
    vocabularyList.CurrentWord = 0;
}

void closeGap(VocabularyList::Words& words, int number)
{
    std::move(words.begin() + number + 1, words.end(), words.begin() + number);
    words[MostWords] = {};
}

} // namespace

bool changesArePending()
{
    return vocabularyEditor.ChangeCount > vocabularyEditor.SavedChangeCount;
}

void forgetPendingChanges()
{
    vocabularyEditor.SavedChangeCount = vocabularyEditor.ChangeCount;
}

void beginNewList()
{
    vocabularyList = {};
    forgetPendingChanges();
}

void acceptWord(int number, const WordRecord& record)
{
    vocabularyList.Loaded[number] = storable(record);
    std::copy_n(vocabularyList.Loaded.begin() + 1, vocabularyList.WordCount,
                vocabularyList.Working.begin() + 1);
    countChange();
}

bool addWord(const WordRecord& record)
{
    if (vocabularyList.WordCount == MostWords)
        return false;
    const int number = ++vocabularyList.WordCount;
    vocabularyList.Loaded[number] = storable(record);
    vocabularyList.Working[number] = vocabularyList.Loaded[number];
    countChange();
    return true;
}

void deleteWord(int number)
{
    closeGap(vocabularyList.Loaded, number);
    closeGap(vocabularyList.Working, number);
    --vocabularyList.WordCount;
    countChange();
}

} // namespace vocabulary
