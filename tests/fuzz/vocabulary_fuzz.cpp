#include "tests/fuzz/one_file.h"
#include "vocabulary/kvtml/kvtml_list.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_tester.h"

#include <algorithm>

void fuzz::readFile(const std::filesystem::path& path)
{
    using namespace vocabulary;
    vocabularyList = {};
    useKvtmlReader(&readKvtml);
    loadList(path);
    const auto words = vocabularyList.Loaded;
    const int count = vocabularyList.WordCount;
    require(std::count(words.begin() + count + 1, words.end(), WordRecord{}) == MostWords - count,
            "Past the last word there is none");
    for (const char* const ending : {".lst", ".tsv"}) {
        std::filesystem::path copy = path;
        copy += ending;
        loadList(path);
        require(!saveList(copy), "A list can be written");
        loadList(copy);
        std::filesystem::remove(copy);
        auto expected = words;
        for (WordRecord& record : expected) {
            record = asWritten(copy, record);
            for (const WordField field : WordFields)
                if (copy.extension() == ".lst")
                    std::ranges::replace(record.*field, '>', ',');
        }
        require(vocabularyList.WordCount == count && vocabularyList.Loaded == expected,
                "What was written is what is read");
    }
    // Past its last counted word the tester ends the program.
    if (count > LastCountedWord)
        return;
    vocabularyTester = {};
    beginTest();
    for (const auto inOrder : {order::Sequential, order::Random})
        for (int question = 1; question <= QuestionsToMissedWord; ++question) {
            require(vocabularyTester.WordIsAsked == platform::FlagFalse || !questionText().empty(),
                    "No empty word is asked");
            countMiss();
            goToNextWord(inOrder);
        }
}
