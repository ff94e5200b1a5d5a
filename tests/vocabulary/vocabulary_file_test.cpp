#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"
#include "vocabulary/vocabulary_file.h"

namespace {

using vocabulary::vocabularyList;
using vocabulary::WordRecord;
using Records = std::vector<WordRecord>;
using VocabularyFile = tests::FreshState;

std::string linesFor(int count)
{
    std::string lines;
    for (int i = 1; i <= count; ++i)
        lines += "verbum" + std::to_string(i) + ",word,n.\r\n";
    return lines;
}

void putIntoMemory(const Records& records)
{
    vocabularyList = {};
    for (const WordRecord& record : records)
        vocabularyList.Working[++vocabularyList.WordCount] = record;
    vocabularyList.Loaded = vocabularyList.Working;
}

TEST_F(VocabularyFile, ReadsEveryFormOfARecord)
{
    const std::vector<std::pair<std::string, Records>> cases = {
        {"", {}},
        {"rosa,rose,f.\r\nrex,king,m.\r\n", {{"rosa", "rose", "f."}, {"rex", "king", "m."}}},
        {"rosa,rose,f.\nrex,king,m.", {{"rosa", "rose", "f."}, {"rex", "king", "m."}}},
        {"rosa\r\nrose\r\nf.\r\n", {{"rosa", "rose", "f."}}},
        {"Roma,Rome> Italy,Romae> f.", {{"Roma", "Rome, Italy", "Romae, f."}}},
        {"\"Rome, Italy\",\" a \",\"\"", {{"Rome, Italy", " a ", ""}}},
        {"  rosa , rose  ,\tf.\t\n", {{"rosa", "rose", "f."}}},
        {",,\r\n", {{"", "", ""}}},
        {"a,b,", {{"a", "b", ""}}},
        {"a,say \"b\",c", {{"a", "say \"b\"", "c"}}},
        {"\xEF\xBB\xBF"
         "f\xC4\x93mina,woman,f.",
         {{"fēmina", "woman", "f."}}},
        {"f\xE9mina,gar\xE7on \x80,f.", {{"fémina", "garçon €", "f."}}},
        {"a,b,c\r\n\r\n", {{"a", "b", "c"}}},
    };
    for (const auto& [bytes, expected] : cases) {
        tests::writeFile("words.lst", bytes);
        const auto file = vocabulary::readVocabularyFile("words.lst");
        EXPECT_EQ(file.records, expected) << bytes;
        EXPECT_FALSE(file.unreadable || file.tooLong || file.cutOff) << bytes;

        putIntoMemory(file.records);
        EXPECT_FALSE(vocabulary::saveList("again.lst"));
        EXPECT_EQ(vocabulary::readVocabularyFile("again.lst").records, expected) << bytes;
    }
}

TEST_F(VocabularyFile, LeavesOutARecordThatTheEndCutsOffAndSaysSo)
{
    for (const std::string rest : {"rex", "rex,king", "rex,king\r\n"}) {
        tests::writeFile("words.lst", "rosa,rose,f.\r\n" + rest);
        const auto loaded = vocabulary::loadList("words.lst");
        EXPECT_EQ(vocabularyList.WordCount, 1) << rest;
        EXPECT_EQ(loaded.message(), "words.lst, line 2: the last word is cut off and was left out") << rest;
    }
}

TEST_F(VocabularyFile, WritesTheBytesOfARecord)
{
    const std::vector<std::pair<WordRecord, std::string>> cases = {
        {{"rosa", "rose", "f."}, "rosa,rose,f.\r\n"},
        {{"Roma", "Rome, Italy", ""}, "Roma,Rome> Italy,\r\n"},
        {{" a", "b ", "\tc"}, "\" a\",\"b \",\"\tc\"\r\n"},
        {{"say \"ave\"", "", " , "}, "say \"ave\",,\" > \"\r\n"},
        {{"", "", ""}, ",,\r\n"},
        {{"\uFEFFrosa", "\uFEFF", ""}, "\xEF\xBB\xBF\xEF\xBB\xBFrosa,\xEF\xBB\xBF,\r\n"},
    };
    for (const auto& [record, bytes] : cases) {
        putIntoMemory({record});
        EXPECT_FALSE(vocabulary::saveList("words.lst"));
        EXPECT_EQ(tests::bytesOf("words.lst"), bytes);
    }
}

TEST_F(VocabularyFile, ReadsBackWhateverIsStorable)
{
    for (const std::string text :
         {"rosa", "",       " ",         "Rome, Italy", " a, ",         "a \"b\" c",     "\"a\" b",
          "\"",   " \"a\"", "\"a, b\" ", "a>b",         "two\r\nlines", "ē, ō",          "\t",
          "'",    ",,,",    "a\"",       "\"\"",        "\uFEFF",       "\uFEFF\uFEFF a"}) {
        const std::string stored = vocabulary::storableText(text);
        EXPECT_EQ(stored.size(), text.size()) << text;
        const WordRecord record{stored, "x" + stored, stored + "x"};
        const WordRecord storable{record.word, vocabulary::storableText(record.translation),
                                  vocabulary::storableText(record.hint)};
        putIntoMemory({storable, storable});
        EXPECT_FALSE(vocabulary::saveList("words.lst"));
        EXPECT_EQ(vocabulary::readVocabularyFile("words.lst").records, Records({storable, storable})) << text;
    }
}

TEST_F(VocabularyFile, KeepsWhatTheFormatCanHold)
{
    for (const std::string text : {"rosa", " a, ", "a \"b\" c", "it's"})
        EXPECT_EQ(vocabulary::storableText(text), text);
    EXPECT_EQ(vocabulary::storableText("\"Ave\", he said"), "'Ave', he said");
    EXPECT_EQ(vocabulary::storableText("a>b\nc"), "a,b c");
}

TEST_F(VocabularyFile, HoldsFromNoneToThreeHundredWords)
{
    for (const int count : {0, 1, 300}) {
        tests::writeFile("words.lst", linesFor(count));
        EXPECT_EQ(vocabulary::loadList("words.lst").message(), "");
        EXPECT_EQ(vocabularyList.WordCount, count);
        EXPECT_FALSE(vocabulary::saveList("again.lst"));
        EXPECT_EQ(tests::bytesOf("again.lst"), linesFor(count));
    }
    EXPECT_EQ(vocabularyList.Loaded[300].word, "verbum300");
}

TEST_F(VocabularyFile, IsRefusedWithoutLossWhereItCannotBeTaken)
{
    tests::writeFile("many.lst", linesFor(301));
    tests::writeFile("huge.lst", std::string(std::size_t{5} << 20U, 'a'));
    std::filesystem::create_directory("folder.lst");
    putIntoMemory({{"rosa", "rose", "f."}});
    vocabularyList.CurrentWord = 1;
    const auto before = vocabularyList.Loaded;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"many.lst", "many.lst: the file holds more than 300 words"},
        {"huge.lst", "huge.lst: the file is too long for a word list"},
        {"missing.lst", "missing.lst: No such file or directory"},
        {"folder.lst", "folder.lst: not a file that can be read"},
    };
    for (const auto& [name, message] : cases) {
        EXPECT_EQ(vocabulary::loadList(name).message(), message);
        EXPECT_EQ(vocabularyList.Loaded, before) << name;
        EXPECT_EQ(vocabularyList.WordCount, 1) << name;
        EXPECT_EQ(vocabularyList.CurrentWord, 1) << name;
    }
}

TEST_F(VocabularyFile, ShowsTheEscapeInMemoryUntilItIsLoadedAgain)
{
    putIntoMemory({{"Roma", "Rome, Italy", "Romae, f."}});
    EXPECT_FALSE(vocabulary::saveList("words.lst"));
    EXPECT_EQ(vocabularyList.Working[1], (WordRecord{"Roma", "Rome> Italy", "Romae> f."}));
    const std::string bytes = tests::bytesOf("words.lst");
    EXPECT_FALSE(vocabulary::saveList("words.lst"));
    EXPECT_EQ(tests::bytesOf("words.lst"), bytes);
    vocabulary::loadList("words.lst");
    EXPECT_EQ(vocabularyList.Working[1], (WordRecord{"Roma", "Rome, Italy", "Romae, f."}));
}

TEST_F(VocabularyFile, AndTheListStayWholeWhereSavingFails)
{
    const auto expectWhole = [](const std::string& path) {
        const auto before = vocabularyList.Working;
        const auto fault = vocabulary::saveList(path);
        ASSERT_TRUE(fault) << path;
        EXPECT_FALSE(fault->reason.empty()) << path;
        EXPECT_EQ(vocabularyList.Working, before) << path;
        EXPECT_EQ(tests::bytesOf("old.lst"), "old,bytes,here\r\n") << path;
        EXPECT_FALSE(std::filesystem::exists(".old.lst.being-written")) << path;
    };
    tests::writeFile("old.lst", "old,bytes,here\r\n");
    putIntoMemory({{"Roma", "Rome, Italy", "Romae, f."}});
    std::filesystem::create_directory("folder.lst");
    expectWhole("no/such/folder/words.lst");
    expectWhole("old.lst/words.lst");
    expectWhole("folder.lst");
    const tests::FullDisk full;
    expectWhole("old.lst");
}

TEST_F(VocabularyFile, ReadsTheSamplesWithoutComplaint)
{
    for (const auto& [name, count] : {std::pair{"vr-vcab.lst", 150},
                                      {"body-and-family.lst", 88},
                                      {"city-and-state.lst", 81},
                                      {"nature.lst", 92},
                                      {"war-and-travel.lst", 88}}) {
        tests::copySample(name);
        EXPECT_EQ(vocabulary::loadList(name).message(), "") << name;
        EXPECT_EQ(vocabularyList.WordCount, count) << name;
        for (int number = 1; number <= count; ++number) {
            const auto& [word, translation, hint] = vocabularyList.Loaded[number];
            EXPECT_FALSE(word.empty() || translation.empty() || hint.empty()) << name << number;
        }
    }
}

} // namespace
