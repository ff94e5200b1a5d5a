#include "platform/code_page.h"
#include "tests/fuzz/one_file.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/vocabulary_file.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <string>

namespace {

using fuzz::require;
using vocabulary::vocabularyList;
using vocabulary::WordRecord;

const WordRecord WordBefore = {"rosa", "rose", "f."};

void startWithOneWord()
{
    vocabularyList = {};
    vocabulary::vocabularyEditor = {};
    vocabulary::vocabularyTester = {};
    vocabulary::addWord(WordBefore);
    vocabularyList.CurrentWord = 1;
    vocabularyList.File = "before.lst";
}

void requireTheListBefore()
{
    require(vocabularyList.WordCount == 1 && vocabularyList.CurrentWord == 1 &&
                vocabularyList.Loaded[1] == WordBefore && vocabularyList.Working[1] == WordBefore &&
                vocabularyList.File == "before.lst" && vocabulary::changesArePending(),
            "A file that is refused leaves the list as it was");
}

void requireStorable(const std::string& text)
{
    require(platform::isUtf8(text), "A text is UTF-8");
    require(vocabulary::storableText(text) == text, "What was read can be written");
}

void requireGoodList(const std::filesystem::path& path)
{
    const int count = vocabularyList.WordCount;
    require(0 <= count && count <= vocabulary::MostWords, "A list holds 0 to 300 words");
    require(vocabularyList.Loaded == vocabularyList.Working, "Both tables hold what was read");
    require(vocabularyList.CurrentWord == 0 && vocabularyList.File == path &&
                !vocabulary::changesArePending(),
            "A list that was read is to be tested from its beginning, and is saved");
    for (int number = 0; number <= vocabulary::MostWords; ++number) {
        const WordRecord& record = vocabularyList.Loaded[number];
        require((1 <= number && number <= count) || record == WordRecord{},
                "Past the last word there is none");
        requireStorable(record.word);
        requireStorable(record.translation);
        requireStorable(record.hint);
    }
}

void requireTheSameAfterWriting(const std::filesystem::path& path)
{
    const auto before = vocabularyList.Loaded;
    const auto count = vocabularyList.WordCount;
    require(!vocabulary::saveList(path), "A list can be written");
    require(!vocabulary::loadList(path), "What was written is read without complaint");
    require(vocabularyList.WordCount == count && vocabularyList.Loaded == before,
            "What was written is what is read");
    requireGoodList(path);
}

void requireGoodQuestion()
{
    if (vocabulary::vocabularyTester.WordIsAsked != platform::FlagTrue)
        return;
    require(1 <= vocabularyList.CurrentWord && vocabularyList.CurrentWord <= vocabularyList.WordCount,
            "The word asked is one of the list");
    require(!vocabulary::questionText().empty(), "No empty word is asked");
}

void testTheList()
{
    if (vocabularyList.WordCount > vocabulary::LastCountedWord)
        return;
    vocabulary::vocabularyTester.PromptLanguage = vocabulary::prompt::Mixed;
    vocabulary::beginTest();
    for (const auto order : {vocabulary::order::Sequential, vocabulary::order::Random})
        for (int question = 1; question <= vocabulary::QuestionsToMissedWord; ++question) {
            requireGoodQuestion();
            vocabulary::countMiss();
            vocabulary::goToNextWord(order);
        }
    requireGoodQuestion();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto path = fuzz::beginWithFile(data, size);
    startWithOneWord();
    const auto fault = vocabulary::loadList(path);
    if (fault && fault->refused()) {
        requireTheListBefore();
        return 0;
    }
    requireGoodList(path);
    requireTheSameAfterWriting(path);
    testTheList();
    return 0;
}
