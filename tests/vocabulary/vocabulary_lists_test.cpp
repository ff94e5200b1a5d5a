#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_edits.h"

#include <algorithm>

namespace {

using namespace vocabulary;
using Records = std::vector<WordRecord>;
using VocabularyLists = tests::FreshState;

const WordRecord Rose{"rosa", "rose", "f."};
const WordRecord Rome{"Ro:ma", "Rome, Italy", "f."};

Records wordsIn(const VocabularyList::Words& table)
{
    const auto first = table.begin() + 1;
    EXPECT_EQ(first[vocabularyList.WordCount], WordRecord{});
    return {first, first + vocabularyList.WordCount};
}

TEST_F(VocabularyLists, ReadsEveryFormOfARecord)
{
    const std::vector<std::pair<std::string, Records>> cases = {
        {"", {}},
        {"rosa,rose,f.\nrex,king,m.", {{"rosa", "rose", "f."}, {"rex", "king", "m."}}},
        {"rosa\r\nrose\r\nf.\r\n", {{"rosa", "rose", "f."}}},
        {"Roma,Rome> Italy,Romae> f.", {{"Roma", "Rome, Italy", "Romae, f."}}},
        {"\"Rome, Italy\" ,\" a \",\"\"", {{"Rome, Italy", " a ", ""}}},
        {"  rosa , rose  ,\tf.\t\n", {{"rosa", "rose", "f."}}},
        {",,\r\na,b,", {{"", "", ""}, {"a", "b", ""}}},
        {"a,say \"b\",\"\"a\" b\"", {{"a", "say \"b\"", "\"a\" b"}}},
        {"\"a,\",\"b\" c,\"d\n", {{"a,", "b", "d"}}},
        {"\xEF\xBB\xBF\x66\xC4\x93mina,woman,f.", {{"fēmina", "woman", "f."}}},
        {"f\xE9mina,gar\xE7on \x80,f.", {{"fémina", "garçon €", "f."}}},
        {"a,b,c\r\n\r\n", {{"a", "b", "c"}}},
    };
    for (const auto& [bytes, expected] : cases) {
        tests::writeFile("words.lst", bytes);
        const auto file = readVocabularyFile("words.lst");
        EXPECT_EQ(file.records, expected) << bytes;
        EXPECT_FALSE(file.fault) << bytes;
    }
}

TEST_F(VocabularyLists, WritesBytesThatReadBackAsWhatWasTyped)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},
        {"rosa", "rosa"},
        {"Rome, Italy", "Rome> Italy"},
        {" , ", "\" > \""},
        {"b\t", "\"b\t\""},
        {"say \"ave\"", "say \"ave\""},
        {"\"a\" b", "\"\"a\" b\""},
        {"\"", "\"\"\""},
        {"\" ", "\"\" \""},
        {" \"a\", \"", "\" \"a\"> \"\""},
        {"ē, ō", "ē> ō"},
        {"\uFEFF", "\uFEFF"},
    };
    for (const auto& [typed, written] : cases) {
        beginNewList();
        addWord({"x", typed, typed});
        addWord({typed, typed, typed + "x"});
        const auto list = vocabularyList.Loaded;
        EXPECT_FALSE(saveList("words.lst"));
        EXPECT_TRUE(
            tests::bytesOf("words.lst").starts_with("x," + written + ',' + written + "\r\n" + written));
        EXPECT_FALSE(loadList("words.lst"));
        EXPECT_EQ(vocabularyList.Loaded, list) << typed;
    }
    EXPECT_FALSE(writeVocabularyFile("words.lst", Records{{"\uFEFFrosa", "pasted\r\nlines", "a>b"}}));
    EXPECT_EQ(tests::bytesOf("words.lst"), "\uFEFF\uFEFFrosa,pasted  lines,a>b\r\n");
}

TEST_F(VocabularyLists, TakeNothingThatDoesNotFitAndLeaveOutARecordThatIsCutOff)
{
    std::string lines;
    for (int i = 1; i <= 300; ++i)
        lines += "verbum" + std::to_string(i) + ",word,n.\r\n";
    tests::writeFile("full.lst", lines);
    tests::writeFile("many.lst", lines + "verbum301,word,n.\r\n");
    tests::writeFile("huge.lst", std::string(std::size_t{5} << 20U, 'a'));
    EXPECT_FALSE(loadList("full.lst"));
    vocabularyList.CurrentWord = 1;
    vocabularyTester.Misses[1] = 1;
    for (const auto& [name, reason] : {std::pair{"many.lst", "the file holds more than 300 words"},
                                       {"huge.lst", "the file is too long for a word list"},
                                       {"missing.lst", "No such file or directory"}}) {
        EXPECT_EQ(loadList(name).value().message(), std::string(name) + ": " + reason);
        EXPECT_EQ(vocabularyList.Loaded[300].word, "verbum300") << name;
        EXPECT_EQ(vocabularyList.WordCount + vocabularyList.CurrentWord + vocabularyTester.Misses[1], 302);
    }
    for (const std::string rest : {"rex", "rex,king", "rex,king\r\n"}) {
        tests::writeFile("cut.lst", "rosa,rose,f.\r\n" + rest);
        EXPECT_EQ(loadList("cut.lst").value().message(),
                  "cut.lst, line 2: the last word is cut off and was left out");
        EXPECT_EQ(wordsIn(vocabularyList.Loaded), Records{Rose});
        EXPECT_EQ(vocabularyList.CurrentWord + vocabularyTester.Misses[1], 0);
    }
}

TEST_F(VocabularyLists, ReadsTheSamplesWithoutComplaint)
{
    for (const auto& [name, words] : {std::pair{"vr-vcab.lst", 150},
                                      {"body-and-family.lst", 88},
                                      {"city-and-state.lst", 81},
                                      {"nature.lst", 92},
                                      {"war-and-travel.lst", 88}}) {
        tests::copySample(name);
        EXPECT_FALSE(loadList(name)) << name;
        EXPECT_EQ(vocabularyList.WordCount, words) << name;
        for (const WordField field : WordFields)
            EXPECT_EQ(std::ranges::count(vocabularyList.Loaded, "", field), 301 - words) << name;
    }
}

TEST_F(VocabularyLists, AreEditedInPlaceAndGivenBackWithTheirTest)
{
    for (const WordRecord& record : {Rose, Rome, Rose})
        EXPECT_TRUE(addWord(record) && changesArePending());
    EXPECT_FALSE(saveList("words.lst") || changesArePending());
    const WordRecord shown{"Ro:ma", "Rome> Italy", "f."};
    EXPECT_EQ(wordsIn(vocabularyList.Working), (Records{Rose, shown, Rose}));
    EXPECT_EQ(wordsIn(vocabularyList.Loaded), (Records{Rose, Rome, Rose}));
    vocabularyList.CurrentWord = 2;
    vocabularyTester.RightAnswers[3] = vocabularyTester.Misses[150] = 7;
    vocabularyTester.Omitted[2] = platform::FlagTrue;
    acceptWord(2, shown);
    EXPECT_FALSE(changesArePending()) << "nothing was changed";
    const auto list = vocabularyList.Working;
    acceptWord(2, {"Ro:ma", "Rome> Italy", "\">\"\t"});
    EXPECT_EQ(vocabularyList.Working[2], (WordRecord{"Ro:ma", "Rome> Italy", "\">\"\t"}));
    EXPECT_EQ(vocabularyList.Loaded[2], (WordRecord{"Ro:ma", "Rome, Italy", "\">\"\t"}));
    deleteWord(1);
    EXPECT_EQ(wordsIn(vocabularyList.Working)[1], Rose);
    EXPECT_EQ(vocabularyTester.RightAnswers[2] + vocabularyTester.Misses[149], 14);
    EXPECT_EQ(vocabularyTester.RightAnswers[3] + vocabularyTester.Misses[150], 0);
    EXPECT_EQ(vocabularyTester.Omitted[1], platform::FlagTrue);
    discardChanges();
    EXPECT_EQ(vocabularyList.Working, list);
    EXPECT_EQ(wordsIn(vocabularyList.Loaded), (Records{Rose, Rome, Rose}));
    EXPECT_EQ(vocabularyTester.RightAnswers[3] + vocabularyTester.Misses[150], 14);
    EXPECT_EQ(vocabularyTester.Omitted[1] + vocabularyList.CurrentWord, 2);
    EXPECT_FALSE(changesArePending());
}

} // namespace
