#include "tests/support/fresh_state.h"
#include "vocabulary/list_division.h"
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

TEST_F(VocabularyLists, AreReadAsOtherProgramsWriteThemAndOnlyWhereTheCommasMakeNoListOfOurs)
{
    const WordRecord love{"amo:", "love, like", "a:re"};
    const std::pair<std::string, Records> cases[] = {
        {"rosa\trose\tf.", {Rose}},
        {"\xEF\xBB\xBF#separator:tab\r\nrosa\t rose \tf.\tflowers\r\n\r\nRoma\tRome > Gaul",
         {Rose, {"Roma", "Rome > Gaul", ""}}},
        {"amo:; love, like ;a:re\n;;;\nmu:s;f\xE9;m.\n", {love, {"mu:s", "fé", "m."}}},
        {"\"a;\"\"b\"\"\";\"two\r\nlines\" ;\"#\"", {{"a;\"b\"", "two lines", "#"}}},
        {"\"Salve\" dixit\tsaid \"hi\"\n\"#a\t\"b",
         {{"\"Salve\" dixit", "said \"hi\"", ""}, {"\"#a", "\"b", ""}}},
        {"rosa;x\trose;y\n", {{"rosa;x", "rose;y", ""}}},
        {"rosa\trose\tf.\nnox\n  # flowers\n\t\nrex\tking\tm.", {Rose, {"rex", "king", "m."}}},
        {"rosa;rose;f.\nnox\nmu:s;\"mouse, rat\"", {Rose, {"mu:s", "mouse, rat", ""}}},
        // Lists of ours, whatever stands between the commas.
        {"rosa;x,rose;y,f.;z\n\nmu:s;,\tmouse;,m.;\n",
         {{"rosa;x", "rose;y", "f.;z"}, {"", "mu:s;", "mouse;"}}},
        {"a\tb,c,d\r\n#e\t,f,g", {{"a\tb", "c", "d"}, {"#e", "f", "g"}}},
        {"a;b,c;d\ne;f", {{"a;b", "c;d", "e;f"}}},
        {"rosa,\trose,\tf.\nservus;i,\tslave;", {Rose}},
        {"#a;b\n#c;d\n#e;f", {{"#a;b", "#c;d", "#e;f"}}},
        {"rosa\nrose;\nf.", {{"rosa", "rose;", "f."}}},
        {";;\n;\n;", {{";;", ";", ";"}}},
    };
    for (const auto& [bytes, expected] : cases) {
        tests::writeFile("words.lst", bytes);
        EXPECT_EQ(readVocabularyFile("words.lst").records, expected) << bytes;
    }
}

TEST_F(VocabularyLists, AreSavedWithTabsAndReadBackWhateverTheyHold)
{
    addWord(Rome);
    addWord({"#1", "a\tb\nc", "\"q\" "});
    vocabularyList.Working[1].hint = "place";
    EXPECT_FALSE(saveList("words.lst") || saveList("Words.TSV"));
    EXPECT_TRUE(tests::bytesOf("words.lst").starts_with("Ro:ma,Rome> Italy,place\r\n"));
    EXPECT_EQ(tests::bytesOf("Words.TSV"), "Ro:ma\tRome, Italy\tplace\r\n\"#1\"\ta b c\t\"\"\"q\"\" \"\r\n");
    EXPECT_EQ(vocabularyList.Working[1].translation, Rome.translation);
    for (const std::string text : {"", "#", "<kvtml", "\"", " a", "a, b, c", ";", "\uFEFF", ",", ">"}) {
        for (const Records& records : {Records{{text, "", ""}}, Records(2, {text, text, text})}) {
            EXPECT_FALSE(writeVocabularyFile("words.tsv", records));
            const auto file = readVocabularyFile("words.tsv");
            EXPECT_TRUE(file.records == records && !file.isForeign) << text << records.size();
        }
    }
}

TEST_F(VocabularyLists, AreDividedBesideTheirFileAndReplaceNothing)
{
    std::string words;
    for (int word = 1; word <= 301; ++word)
        words += std::to_string(word) + "; a, b\n";
    tests::writeFile("long.list.csv", words);
    tests::writeFile("long.list-2.lst", "mine");
    const Division division = divideList("long.list.csv");
    EXPECT_EQ(division.lists,
              (std::vector<std::filesystem::path>{"long.list-3.lst", "long.list-4.lst", "long.list-5.lst"}));
    EXPECT_EQ(readVocabularyFile("long.list-4.lst").records.front(), (WordRecord{"151", "a, b", ""}));
    EXPECT_EQ(tests::bytesOf("long.list-5.lst"), "301,a> b,\r\n");
    EXPECT_EQ(tests::bytesOf("long.list-2.lst") + tests::bytesOf("long.list.csv"), "mine" + words);
    std::string huge;
    while (huge.size() < 60'004)
        huge += "a\tb\n";
    tests::writeFile("huge.tsv", huge);
    EXPECT_EQ(divideList("huge.tsv").fault->message(), "huge.tsv: the file holds more than 300 words");
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
