#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_edits.h"

namespace {

using namespace vocabulary;
using Records = std::vector<WordRecord>;
using VocabularyLists = tests::FreshState;

const WordRecord Rose{"rosa", "rose", "f."};
const WordRecord Rome{"Ro:ma", "Rome, Italy", "f."};

TEST_F(VocabularyLists, ReadEveryFormOfARecordAndLeaveOutOneThatIsCutOffButNoneOfTheSamples)
{
    const std::vector<std::pair<std::string, Records>> cases = {
        {"rosa\r\nrose\r\nf.\r\nrex,king,m.", {Rose, {"rex", "king", "m."}}},
        {"Roma,Rome> Italy,\"Rome, Italy\" \n\" a \",\"\",a",
         {{"Roma", "Rome, Italy", "Rome, Italy"}, {" a ", "", "a"}}},
        {"  rosa , rose  ,\tf.\t", {Rose}},
        {",,\r\na,b,", {{"", "", ""}, {"a", "b", ""}}},
        {"a,say \"b\",\"\"a\" b\"", {{"a", "say \"b\"", "\"a\" b"}}},
        {"\"a,\",\"b\" c,\"d", {{"a,", "b", "d"}}},
        {"\xEF\xBB\xBF\x66\xC4\x93mina,woman,f.", {{"fēmina", "woman", "f."}}},
        {"f\xE9mina,gar\xE7on \x80,f.", {{"fémina", "garçon €", "f."}}},
    };
    for (const auto& [bytes, expected] : cases)
        for (const std::string rest : {"", "\r\n\r\n", "\nrex", "\r\nrex,king", "\rrex,king\n"}) {
            tests::writeFile("words.lst", bytes + rest);
            const auto file = readVocabularyFile("words.lst");
            EXPECT_EQ(file.records, expected) << bytes << rest;
            EXPECT_EQ(file.fault.has_value(), rest.find("rex") != rest.npos) << bytes << rest;
        }
    for (const auto& file : std::filesystem::directory_iterator(MORVANTI_DATA))
        EXPECT_FALSE(file.path().extension() == ".lst" && readVocabularyFile(file.path()).fault) << file;
}

TEST_F(VocabularyLists, ReadBackWhatWasTypedAndSaved)
{
    const Records records = {{"Roma", "Rome, Italy", ""}, {" a", "\"b\" c", ""}, {"\t, ", "\"", "\" "}};
    EXPECT_FALSE(writeVocabularyFile("words.lst", records));
    EXPECT_EQ(tests::bytesOf("words.lst"), "Roma,Rome> Italy,\r\n"
                                           "\" a\",\"\"b\" c\",\r\n"
                                           "\"\t> \",\"\"\",\"\" \"\r\n");
    EXPECT_EQ(readVocabularyFile("words.lst").records, records);
    for (const std::string text :
         {"", " \"a\", \"", "\"\"", "\", \",", "'", ",,,", "\uFEFF", "\uFEFF\uFEFF a", "ē, ō"}) {
        const Records twice(2, {text, "x" + text, text + "x"});
        EXPECT_FALSE(writeVocabularyFile("words.lst", twice));
        EXPECT_EQ(readVocabularyFile("words.lst").records, twice) << text;
    }
    EXPECT_FALSE(writeVocabularyFile("words.lst", Records{{"pasted\r\nlines", "a>b", "\n"}}));
    EXPECT_EQ(tests::bytesOf("words.lst"), "pasted  lines,a>b,\" \"\r\n");
}

TEST_F(VocabularyLists, AreEditedInPlaceAndGivenBackWithTheirTest)
{
    VocabularyTester& test = vocabularyTester;
    for (const WordRecord& record : {Rose, Rome, Rose})
        EXPECT_TRUE(addWord(record) && changesArePending());
    vocabularyList.CurrentWord = 3;
    EXPECT_FALSE(saveList("words.lst") || changesArePending() || vocabularyList.CurrentWord > 0);
    vocabularyList.CurrentWord = 2;
    test.RightAnswers[3] = test.Misses[150] = 7;
    test.Omitted[3] = platform::FlagTrue;
    acceptWord(2, {"Ro:ma", "Rome> Italy", "f."});
    EXPECT_FALSE(changesArePending()) << "as it stands since the save";
    acceptWord(2, {"Ro:ma", "Rome> Italy", "\">\"\t"});
    EXPECT_EQ(vocabularyList.Working[2], (WordRecord{"Ro:ma", "Rome> Italy", "\">\"\t"}));
    EXPECT_EQ(vocabularyList.Loaded[2], (WordRecord{"Ro:ma", "Rome, Italy", "\">\"\t"}));
    for (int i = 0; i < 2; ++i)
        deleteWord(1);
    EXPECT_EQ(vocabularyList.Loaded[1], Rose);
    EXPECT_EQ(vocabularyList.Loaded[2], WordRecord{});
    EXPECT_EQ(test.RightAnswers[1] + test.Misses[148] + test.Omitted[1], 13);
    EXPECT_EQ(test.RightAnswers[3] + test.Misses[150] + test.Omitted[3], 0);
    discardChanges();
    EXPECT_EQ(test.RightAnswers[3] + test.Misses[150] + vocabularyList.CurrentWord, 16);
}

} // namespace
