#include "vocabulary/vocabulary_list.h"

#include "platform/code_page.h"
#include "platform/file_replacement.h"
#include "platform/text_file.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_file.h"

namespace vocabulary {

VocabularyList vocabularyList;

namespace {

void takeList(const std::vector<WordRecord>& records, const std::filesystem::path& path)
{
    vocabularyList = {};
    for (const WordRecord& record : records)
        vocabularyList.Loaded[++vocabularyList.WordCount] = record;
    vocabularyList.Working = vocabularyList.Loaded;
    vocabularyList.File = path;
    forgetPendingChanges();
}

} // namespace

std::string LoadFaults::message() const
{
    for (const auto& fault : {unreadable, tooLong, cutOff})
        if (fault)
            return fault->message();
    return {};
}

LoadFaults loadList(const std::filesystem::path& path)
{
    const VocabularyFile file = readVocabularyFile(path);
    const LoadFaults faults{file.unreadable, file.tooLong, file.cutOff};
    if (!faults.refused())
        takeList(file.records, path);
    return faults;
}

std::optional<platform::Fault> saveList(const std::filesystem::path& path)
{
    VocabularyList::Words words = vocabularyList.Working;
    std::string text;
    for (int number = 1; number <= vocabularyList.WordCount; ++number) {
        words[number] = withoutCommas(words[number]);
        text += recordLine(words[number]);
    }
    const std::string bytes = platform::encoded(text);
    if (bytes.size() >= platform::LongestFile)
        return platform::Fault{path.filename().string(), 0, "the list is too long to be read again"};
    if (const auto fault = platform::replaceFile(path, bytes))
        return fault;
    vocabularyList.Working = words;
    vocabularyList.CurrentWord = 0;
    vocabularyList.File = path;
    forgetPendingChanges();
    return {};
}

} // namespace vocabulary
