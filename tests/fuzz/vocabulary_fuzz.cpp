#include "tests/fuzz/one_file.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_tester.h"

#include <algorithm>

void fuzz::readFile(const std::filesystem::path& path)
{
    using namespace vocabulary;
    vocabularyList = {};
    loadList(path);
    const auto words = vocabularyList.Loaded;
    const int count = vocabularyList.WordCount;
    require(std::count(words.begin() + count + 1, words.end(), WordRecord{}) == MostWords - count,
            "Past the last word there is none");
    require(!saveList(path), "A list can be written");
    loadList(path);
    require(vocabularyList.WordCount == count && vocabularyList.Loaded == words,
            "What was written is what is read");
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
