#include "vocabulary/vocabulary_edits.h"

#include "vocabulary/comma_list.h"
#include "vocabulary/separated_list.h"

#include <algorithm>
#include <span>
#include <system_error>
#include <tuple>
#include <vector>

namespace vocabulary {

namespace {

void forgetPendingChanges()
{
    vocabularyEditor.SavedChangeCount = vocabularyEditor.ChangeCount;
}

void takeList(const VocabularyFile& file, const std::filesystem::path& path)
{
    vocabularyList = {};
    for (const WordRecord& record : file.records)
        vocabularyList.Loaded[++vocabularyList.WordCount] = record;
    vocabularyList.Working = vocabularyList.Loaded;
    vocabularyList.File = path;
    vocabularyList.FileIsForeign = file.isForeign;
    clearCounts();
    forgetPendingChanges();
}

std::span<WordRecord> workingWords()
{
    return std::span(vocabularyList.Working.begin(), vocabularyList.Working.end())
        .subspan(1, static_cast<std::size_t>(vocabularyList.WordCount));
}

// A list with tabs gets the fields as they were loaded where ">" stands for their commas since a save: there
// it stands for none.
WordRecord wordWithTabs(int number)
{
    const WordRecord loaded = asWrittenWithTabs(vocabularyList.Loaded[number]);
    const WordRecord escaped = asWrittenWithCommas(loaded);
    WordRecord word = asWrittenWithTabs(vocabularyList.Working[number]);
    for (const WordField field : WordFields)
        if (word.*field == escaped.*field)
            word.*field = loaded.*field;
    return word;
}

std::vector<WordRecord> wordsToSave(const std::filesystem::path& path)
{
    const std::span words = workingWords();
    std::vector<WordRecord> toSave(words.begin(), words.end());
    if (isWrittenWithTabs(path))
        std::ranges::generate(toSave, [number = 0]() mutable { return wordWithTabs(++number); });
    return toSave;
}

// Comes before a change, so that all that are pending can be taken back.
void countChange()
{
    if (!changesArePending())
        vocabularyEditor.Unchanged = {vocabularyList, vocabularyTester};
    ++vocabularyEditor.ChangeCount;
}

// A table may keep only the first words of the list.
template <typename Value, std::size_t Size>
void closeGap(platform::Table<Value, Size>& table, int number)
{
    if (number >= table.size())
        return;
    std::move(table.begin() + number + 1, table.end(), table.begin() + number);
    table[table.size() - 1] = {};
}

bool isMissing(const std::filesystem::path& path)
{
    std::error_code error;
    return !std::filesystem::exists(path, error) && !error;
}

} // namespace

bool changesArePending()
{
    return vocabularyEditor.ChangeCount > vocabularyEditor.SavedChangeCount;
}

void discardChanges()
{
    if (!changesArePending())
        return;
    std::tie(vocabularyList, vocabularyTester) = vocabularyEditor.Unchanged;
    forgetPendingChanges();
}

void beginNewList()
{
    vocabularyList = {};
    forgetPendingChanges();
}

std::optional<LoadFault> loadList(const std::filesystem::path& path)
{
    const VocabularyFile file = readVocabularyFile(path);
    if (!file.fault || !file.fault->refused())
        takeList(file, path);
    return file.fault;
}

std::string openDefaultList()
{
    vocabularyTester = {};
    const auto fault = loadList(DefaultListName);
    beginTest();
    return fault && !isMissing(DefaultListName) ? fault->message() : "";
}

std::filesystem::path fileToSave()
{
    std::filesystem::path file = vocabularyList.File;
    const bool keepsItsFormat = !vocabularyList.FileIsForeign || isWrittenWithTabs(file);
    return keepsItsFormat ? file : file.replace_extension(OwnEnding);
}

bool wouldReplaceAnotherFile(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error) && !std::filesystem::is_directory(path, error) &&
           (vocabularyList.FileIsForeign || !std::filesystem::equivalent(path, vocabularyList.File, error));
}

std::optional<platform::Fault> saveList(const std::filesystem::path& path)
{
    const std::vector<WordRecord> words = wordsToSave(path);
    if (const auto fault = writeVocabularyFile(path, words))
        return fault;
    std::ranges::transform(words, workingWords().begin(),
                           [&](const WordRecord& word) { return asWritten(path, word); });
    vocabularyList.CurrentWord = 0;
    vocabularyList.File = path;
    vocabularyList.FileIsForeign = false;
    forgetPendingChanges();
    return {};
}

void acceptWord(int number, const WordRecord& record)
{
    if (record == vocabularyList.Working[number])
        return;
    countChange();
    for (const WordField field : WordFields)
        if (record.*field != vocabularyList.Working[number].*field)
            vocabularyList.Loaded[number].*field = record.*field;
    vocabularyList.Working[number] = record;
}

bool addWord(const WordRecord& record)
{
    if (vocabularyList.WordCount == MostWords)
        return false;
    countChange();
    const int number = ++vocabularyList.WordCount;
    vocabularyList.Loaded[number] = record;
    vocabularyList.Working[number] = record;
    return true;
}

void deleteWord(int number)
{
    countChange();
    closeGap(vocabularyList.Loaded, number);
    closeGap(vocabularyList.Working, number);
    closeGap(vocabularyTester.RightAnswers, number);
    closeGap(vocabularyTester.Misses, number);
    closeGap(vocabularyTester.Omitted, number);
    --vocabularyList.WordCount;
}

} // namespace vocabulary
