#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "nouns/noun_list_file.h"
#include "tests/support/fresh_state.h"

#include <numeric>
#include <vector>

namespace {

using namespace nouns;

// One noun in every section.
const std::string SmallList = "title\n1\nf. -ae,stell,star,Stern,étoile,estrella\n"
                              "heading,fields\n1\nm. -i,lu:d,game,g,f,s\n"
                              "heading,fields\n1\nf. lucis,lu:x,lu:c,light,g,f,s\n"
                              "heading,fields\n1\nm. -ri,cap,he-goat,g,f,s\n"
                              "1\nn. -i,sax,rock,g,f,s\n"
                              "heading,fields\n1\nn. -oris,pectus,breast,g,f,s\n"
                              "heading,fields\n1\nn. -us,corn,horn,g,f,s\n"
                              "heading,fields\n1\nf. -ei,r,thing,g,f,s\n";

using NounListFile = tests::FreshState;

bool read(const std::string& text)
{
    nounList = {};
    tests::writeFile("nouns.cfg", text);
    return readNounList("nouns.cfg");
}

TEST_F(NounListFile, TakesTheSectionsInTheirOrder)
{
    EXPECT_TRUE(read(SmallList));
    int paradigm = FirstDeclension;
    for (const char* const stem : {"stell", "lud", "cap", "sax", "", "corn", "r", "lux", "pectus"})
        EXPECT_EQ(nounList.NounListStem[paradigm++][0], stem);
    EXPECT_EQ(nounAt(ThirdDeclension, 1), (NounRecord{"f. lucis", "lux", "luc", {"light", "g", "f", "s"}}));
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclensionNeuter][0], "");
}

TEST_F(NounListFile, KeepsWholeNounsWhereverTheFileIsCutOff)
{
    int whole = 0;
    for (auto end = SmallList.find('\n'); end + 1 < SmallList.size();
         end = SmallList.find_first_of(",\n", end + 1)) {
        const std::string text = SmallList.substr(0, end);
        // The last field of every noun is its Spanish meaning.
        whole += text.ends_with("estrella") || text.ends_with(",s") ? 1 : 0;
        EXPECT_FALSE(read(text)) << text;
        EXPECT_EQ(std::accumulate(nounList.NounCount.begin(), nounList.NounCount.end(), 0), whole) << text;
        BuildNounParadigms();
    }
}

// A list of more nouns than a paradigm holds, or fewer than are counted.
TEST_F(NounListFile, StopsAtACountThatCannotBe)
{
    std::string nouns;
    for (int number = 1; number <= 21; ++number)
        nouns += "m. -is,rex,reg,king,,,\n";
    const std::string third = "title\n0\nh,h\n0\nh,h\n";
    for (const auto& [list, paradigm, counted] : {std::tuple{"title\nmany\n" + nouns, FirstDeclension, 0},
                                                  {"title\n-3\n" + nouns, FirstDeclension, 0},
                                                  {"title\n21\n" + nouns, FirstDeclension, 20},
                                                  {"title\n2\nf. -ae,stell,star,,,\n", FirstDeclension, 1},
                                                  {third + "11\n" + nouns, ThirdDeclension, 10}}) {
        EXPECT_FALSE(read(list)) << list;
        EXPECT_EQ(nounList.NounCount[paradigm], counted) << list;
        for (int draws = 0; draws < 50; ++draws)
            BuildNounParadigms();
    }
    EXPECT_FALSE(readNounList("none.cfg"));
}

} // namespace
