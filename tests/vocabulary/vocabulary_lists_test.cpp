#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_edits.h"

#include <algorithm>

namespace {

using namespace vocabulary;
using Records = std::vector<WordRecord>;
using VocabularyLists = tests::FreshState;

const WordRecord Rose{"rosa", "rose", "f."};
const WordRecord King{"'re:x'", "king, ruler", "m. "};
const WordRecord Rome{"Ro:ma", "Rome, Italy", "f."};

void expectWords(const Records& expected)
{
    const auto first = vocabularyList.Loaded.begin() + 1;
    EXPECT_EQ(Records(first, first + vocabularyList.WordCount), expected);
    EXPECT_EQ(first[vocabularyList.WordCount], WordRecord{});
    EXPECT_EQ(vocabularyList.Working, vocabularyList.Loaded);
    EXPECT_EQ(vocabularyList.CurrentWord, 0) << "a list that has changed is tested from its beginning";
}

TEST_F(VocabularyLists, ReadsEveryFormOfARecord)
{
    const std::vector<std::pair<std::string, Records>> cases = {
        {"", {}},
        {"rosa,rose,f.\nrex,king,m.", {{"rosa", "rose", "f."}, {"rex", "king", "m."}}},
        {"rosa\r\nrose\r\nf.\r\n", {{"rosa", "rose", "f."}}},
        {"Roma,Rome> Italy,Romae> f.", {{"Roma", "Rome, Italy", "Romae, f."}}},
        {"\"Rome, Italy\",\" a \",\"\"", {{"Rome, Italy", " a ", ""}}},
        {"  rosa , rose  ,\tf.\t\n", {{"rosa", "rose", "f."}}},
        {",,\r\n", {{"", "", ""}}},
        {"a,b,", {{"a", "b", ""}}},
        {"a,say \"b\",c", {{"a", "say \"b\"", "c"}}},
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

TEST_F(VocabularyLists, WritesTheBytesOfARecord)
{
    const std::vector<std::pair<WordRecord, std::string>> cases = {
        {{"Roma", "Rome, Italy", ""}, "Roma,Rome> Italy,\r\n"},
        {{" a", "b ", "\tc"}, "\" a\",\"b \",\"\tc\"\r\n"},
        {{"say \"ave\"", "", " , "}, "say \"ave\",,\" > \"\r\n"},
        {{"", "", ""}, ",,\r\n"},
        {{"\uFEFFrosa", "\uFEFF", ""}, "\xEF\xBB\xBF\xEF\xBB\xBFrosa,\xEF\xBB\xBF,\r\n"},
    };
    for (const auto& [record, bytes] : cases) {
        EXPECT_FALSE(writeVocabularyFile("words.lst", Records{record}));
        EXPECT_EQ(tests::bytesOf("words.lst"), bytes);
    }
}

TEST_F(VocabularyLists, ReadsBackWhateverIsStorable)
{
    for (const std::string text :
         {"rosa", "",       " ",         "Rome, Italy", " a, ",         "a \"b\" c",     "\"a\" b",
          "\"",   " \"a\"", "\"a, b\" ", "a>b",         "two\r\nlines", "ē, ō",          "\t",
          "'",    ",,,",    "a\"",       "\"\"",        "\uFEFF",       "\uFEFF\uFEFF a"}) {
        beginNewList();
        addWord({text, "x" + text, text + "x"});
        addWord(vocabularyList.Loaded[1]);
        const auto stored = vocabularyList.Loaded;
        EXPECT_EQ(stored[1].word.size(), text.size()) << text;
        EXPECT_FALSE(saveList("words.lst") || loadList("words.lst")) << text;
        EXPECT_EQ(vocabularyList.Loaded, stored) << text;
    }
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
    for (const auto& [name, reason] : {std::pair{"many.lst", "the file holds more than 300 words"},
                                       {"huge.lst", "the file is too long for a word list"},
                                       {"missing.lst", "No such file or directory"}}) {
        EXPECT_EQ(loadList(name).value().message(), std::string(name) + ": " + reason);
        EXPECT_EQ(vocabularyList.Loaded[300].word, "verbum300") << name;
        EXPECT_EQ(vocabularyList.WordCount + vocabularyList.CurrentWord, 301) << name;
    }
    for (const std::string rest : {"rex", "rex,king", "rex,king\r\n"}) {
        tests::writeFile("cut.lst", "rosa,rose,f.\r\n" + rest);
        EXPECT_EQ(loadList("cut.lst").value().message(),
                  "cut.lst, line 2: the last word is cut off and was left out");
        expectWords({Rose});
    }
}

TEST_F(VocabularyLists, ReadsTheSamplesWithoutComplaint)
{
    int words = 0;
    for (const std::string name :
         {"vr-vcab", "body-and-family", "city-and-state", "nature", "war-and-travel"}) {
        tests::copySample(name + ".lst");
        EXPECT_FALSE(loadList(name + ".lst")) << name;
        words += vocabularyList.WordCount;
        for (const auto field : {&WordRecord::word, &WordRecord::translation, &WordRecord::hint})
            EXPECT_EQ(std::ranges::count(vocabularyList.Loaded, "", field), 301 - vocabularyList.WordCount);
    }
    EXPECT_EQ(words, 150 + 88 + 81 + 92 + 88);
}

TEST_F(VocabularyLists, AreAddedToChangedInPlaceAndClosedUpWithTheCommasThatASaveHadReplaced)
{
    for (const WordRecord& record : {Rose, Rome, Rose})
        EXPECT_TRUE(addWord(record) && changesArePending());
    expectWords({Rose, Rome, Rose});
    EXPECT_FALSE(saveList("words.lst") || changesArePending());
    EXPECT_EQ(vocabularyList.Working[2].translation, "Rome> Italy");
    vocabularyList.CurrentWord = 2;
    acceptWord(3, {"\"re:x\"", "king> ruler", "m.\n"});
    expectWords({Rose, Rome, King});
    vocabularyList.CurrentWord = 2;
    deleteWord(1);
    expectWords({Rome, King});
    deleteWord(2);
    expectWords({Rome});
}

} // namespace
