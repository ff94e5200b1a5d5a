#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "nouns/noun_list_file.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <numeric>
#include <tuple>
#include <vector>

namespace {

using namespace nouns;
using NounListFile = tests::FreshState;

// One noun in every section, field by field.
const std::vector<std::string> SmallList = {
    "title",                                                                                  //
    "1",       "f. -ae", "stell", "star",     "Stern",  "étoile",  "estrella",                //
    "heading", "fields", "1",     "m. -i",    "lu:d",   "game",    "g",        "f", "s",      //
    "heading", "fields", "1",     "f. lucis", "lu:x",   "lu:c",    "light",    "g", "f", "s", //
    "heading", "fields", "1",     "m. -ri",   "cap",    "he-goat", "g",        "f", "s",      //
    "1",       "n. -i",  "sax",   "rock",     "g",      "f",       "s",                       //
    "heading", "fields", "1",     "n. -oris", "pectus", "breast",  "g",        "f", "s",      //
    "heading", "fields", "1",     "n. -us",   "corn",   "horn",    "g",        "f", "s",      //
    "heading", "fields", "1",     "f. -ei",   "r",      "thing",   "g",        "f", "s"};

// The first `count` fields, a line each.
std::string linesOf(const std::vector<std::string>& fields, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += fields[i] + "\n";
    return text;
}

int nounsRead()
{
    const auto& counts = nounList.NounCount;
    return std::accumulate(counts.begin(), counts.end(), 0);
}

std::string records(int count, const std::string& record)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += record + "\n";
    return text;
}

TEST_F(NounListFile, TakesTheSectionsInTheirOrder)
{
    tests::writeFile("nouns.cfg", linesOf(SmallList, SmallList.size()));
    EXPECT_TRUE(readNounList("nouns.cfg"));
    const std::array stems = {"", "stell", "lud", "cap", "sax", "", "corn", "r", "lux", "pectus"};
    for (int paradigm = FirstDeclension; paradigm <= ParadigmCount; ++paradigm)
        EXPECT_EQ(nounList.NounListStem[paradigm][0], stems.at(static_cast<std::size_t>(paradigm)));
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclension][0], "luc");
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclensionNeuter][0], "");
    EXPECT_EQ(nounList.NounListNote[SecondDeclensionEr][1], "m. -ri");
    EXPECT_EQ(nounList.NounListMeaning[1][ThirdDeclensionNeuter][1], "breast");
    EXPECT_EQ(nounList.NounListMeaning[4][FirstDeclension][1], "estrella");
}

TEST_F(NounListFile, KeepsWholeNounsWhereverTheFileIsCutOff)
{
    // The field after which each of the eight nouns is whole.
    const std::vector<std::size_t> ends = {8, 17, 27, 36, 43, 52, 61, 70};
    ASSERT_EQ(SmallList.size(), ends.back());
    for (std::size_t fields = 0; fields < SmallList.size(); ++fields) {
        nounList = {};
        tests::writeFile("nouns.cfg", linesOf(SmallList, fields));
        EXPECT_FALSE(readNounList("nouns.cfg")) << fields;
        const auto whole = std::count_if(ends.begin(), ends.end(), [&](auto end) { return end <= fields; });
        EXPECT_EQ(nounsRead(), whole) << fields;
        BuildNounParadigms();
    }
}

TEST_F(NounListFile, StopsAtACountThatCannotBe)
{
    const std::string noun = "f. -ae, stell, star,,,";
    const std::string head = "title\n0\nh,h\n0\nh,h\n";
    const std::vector<std::tuple<std::string, std::string, int, int>> files = {
        {"no number", "title\nmany\n" + noun, FirstDeclension, 0},
        {"negative", "title\n-3\n" + noun, FirstDeclension, 0},
        {"too large a number", "title\n70000\n" + noun, FirstDeclension, 0},
        {"more than there are", "title\n5\n" + records(2, noun), FirstDeclension, 2},
        {"a twenty-first noun", "title\n21\n" + records(21, noun), FirstDeclension, 20},
        {"an eleventh oblique stem", head + "11\n" + records(11, "m. -is, rex, reg, king,,,"),
         ThirdDeclension, 10},
        {"headings before the second neuter", head + "0\nh,h\n0\nh,h\n1\nn. -i, sax, rock,,,\n",
         SecondDeclensionNeuter, 0},
    };
    for (const auto& [name, list, paradigm, counted] : files) {
        nounList = {};
        tests::writeFile("nouns.cfg", list);
        EXPECT_FALSE(readNounList("nouns.cfg")) << name;
        EXPECT_EQ(nounList.NounCount[paradigm], counted) << name;
        for (int draws = 0; draws < 50; ++draws)
            BuildNounParadigms();
    }
}

} // namespace
