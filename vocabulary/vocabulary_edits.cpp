#include "vocabulary/vocabulary_edits.h"

#include <algorithm>
#include <span>
#include <vector>

namespace vocabulary {

namespace {

WordRecord storable(const WordRecord& record)
{
    return {storableText(record.word), storableText(record.translation), storableText(record.hint)};
}

void takeList(const std::vector<WordRecord>& records, const std::filesystem::path& path)
{
    vocabularyList = {};
    for (const WordRecord& record : records)
        vocabularyList.Loaded[++vocabularyList.WordCount] = record;
    vocabularyList.Working = vocabularyList.Loaded;
    vocabularyList.File = path;
    forgetPendingChanges();
}

std::span<WordRecord> workingWords()
{
    return std::span(vocabularyList.Working.begin(), vocabularyList.Working.end())
        .subspan(1, static_cast<std::size_t>(vocabularyList.WordCount));
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

std::optional<LoadFault> loadList(const std::filesystem::path& path)
{
    VocabularyFile file = readVocabularyFile(path);
    if (!file.fault || !file.fault->refused())
        takeList(file.records, path);
    return file.fault;
}

std::optional<platform::Fault> saveList(const std::filesystem::path& path)
{
    const std::span words = workingWords();
    if (const auto fault = writeVocabularyFile(path, words))
        return fault;
    std::ranges::transform(words, words.begin(), withoutCommas);
    vocabularyList.CurrentWord = 0;
    vocabularyList.File = path;
    forgetPendingChanges();
    return {};
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
