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

class NounListFile : public tests::FreshState {
protected:
    static bool read(const std::string& text)
    {
        nounList = {};
        tests::writeFile("nouns.cfg", text);
        return readNounList("nouns.cfg");
    }
};

TEST_F(NounListFile, TakesTheSectionsInTheirOrder)
{
    EXPECT_TRUE(read(SmallList));
    int paradigm = FirstDeclension;
    for (const char* const stem : {"stell", "lud", "cap", "sax", "", "corn", "r", "lux", "pectus"})
        EXPECT_EQ(nounList.NounListStem[paradigm++][0], stem);
    const NounRecord expected = {"f. lucis", "lux", "luc", {"light", "g", "f", "s"}};
    EXPECT_EQ(nounAt(ThirdDeclension, 1), expected);
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclensionNeuter][0], "");
    EXPECT_EQ(nounAt(FirstDeclension, 1).meanings.back(), "estrella");
}

TEST_F(NounListFile, KeepsWholeNounsWhereverTheFileIsCutOff)
{
    int whole = 0;
    for (std::size_t end = 0; end + 1 < SmallList.size(); ++end) {
        if (SmallList[end] != ',' && SmallList[end] != '\n')
            continue;
        const std::string text = SmallList.substr(0, end);
        // The last field of every noun is its Spanish meaning.
        if (text.ends_with("estrella") || text.ends_with(",s"))
            ++whole;
        EXPECT_FALSE(read(text)) << text;
        EXPECT_EQ(std::accumulate(nounList.NounCount.begin(), nounList.NounCount.end(), 0), whole) << text;
        BuildNounParadigms();
    }
}

TEST_F(NounListFile, StopsAtACountThatCannotBe)
{
    const std::string noun = "f. -ae,stell,star,,,\n";
    std::string many;
    std::string manyOfTheThird;
    while (many.size() < 21 * noun.size()) {
        many += noun;
        manyOfTheThird += "m. -is,rex,reg,king,,,\n";
    }
    const std::vector<std::tuple<std::string, int, int>> cases = {
        {"title\nmany\n" + many, FirstDeclension, 0},
        {"title\n-3\n" + many, FirstDeclension, 0},
        {"title\n21\n" + many, FirstDeclension, 20},
        {"title\n5\n" + noun + noun, FirstDeclension, 2},
        {"title\n0\nh,h\n0\nh,h\n11\n" + manyOfTheThird, ThirdDeclension, 10}};
    for (const auto& [list, paradigm, counted] : cases) {
        EXPECT_FALSE(read(list)) << list;
        EXPECT_EQ(nounList.NounCount[paradigm], counted) << list;
        for (int draws = 0; draws < 50; ++draws)
            BuildNounParadigms();
    }
    EXPECT_FALSE(readNounList("none.cfg"));
}

} // namespace
