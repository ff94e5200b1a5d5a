#include "nouns/declensions.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/nouns/declension_pages.h"
#include "tests/support/fresh_state.h"

#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <sstream>
#include <vector>

namespace {

using namespace nouns;
using shell::settings;

class Nouns : public tests::FreshState {
protected:
    Nouns()
    {
        tests::copySample("nouns.cfg");
        readSamples(platform::FlagFalse);
    }

    static void readSamples(platform::Flag marks)
    {
        settings.ShowVowelLength = marks;
        settings.VowelMark.clear();
        readNounList("nouns.cfg");
        nounList.NounCount[FourthDeclension] = 5;
    }

    // Draws until the noun of a paradigm has this nominative.
    static void drawUntil(int paradigm, const std::string& nominative)
    {
        for (int draws = 0; draws < 2000; ++draws) {
            BuildNounParadigms();
            if (nounTables.NounForms[paradigm][NominativeSingular] == nominative)
                return;
        }
        FAIL() << nominative << " was not drawn";
    }
};

TEST_F(Nouns, AreDeclinedAsInTheGrammarWithMarksAndWithout)
{
    for (const platform::Flag marks : {platform::FlagTrue, platform::FlagFalse}) {
        readSamples(marks);
        BuildNounParadigms();
        for (const auto& [paradigm, forms, number] : tests::DeclensionPages) {
            std::string page = forms;
            if (marks == platform::FlagFalse)
                std::erase(page, ':');
            if (number == 0)
                drawUntil(paradigm, page.substr(0, page.find(' ')));
            else
                buildThirdDeclension(number);
            std::istringstream words(page);
            for (int inCase = NominativeSingular; inCase <= CaseCount; ++inCase)
                EXPECT_EQ(nounTables.NounForms[paradigm][inCase], *std::istream_iterator<std::string>(words));
        }
    }
}

// sic: never the mixed nouns and the i-stem of the third declension, and neuters without their meaning.
TEST_F(Nouns, AreDrawnAndCaptionedWithGenderAndMeaning)
{
    std::array<std::set<std::string>, ParadigmCount + 1> drawn;
    for (int draws = 0; draws < 1500; ++draws) {
        BuildNounParadigms();
        for (std::size_t paradigm = 1; paradigm < drawn.size(); ++paradigm)
            drawn.at(paradigm).insert(nounTables.NounCaption[static_cast<int>(paradigm)]);
    }
    // clang-format off
    const std::vector<std::tuple<NounParadigm, std::size_t, std::string>> captions = {
        {FirstDeclension,    12, "puella  (f. -ae) = girl"}, {SecondDeclensionUs,     10, "hortus  (m. -i) = garden"},
        {SecondDeclensionEr, 10, "ager  (m. -ri) = field"},  {SecondDeclensionNeuter, 15, "bellum  (n. -i) =  + EnglNTrans4(X)"},
        {FourthDeclension,    5, "fructus -us (m) = fruit"}, {FourthDeclensionNeuter,  2, "genu -us (n) = knee"},
        {ThirdDeclension,     6, "rex (m. regis) = king"},   {ThirdDeclension,         6, "virtus (f. -utis) = virtue"},
        {ThirdDeclension,     6, "homo (m. -inis) = man"},   {ThirdDeclensionNeuter,   8, "mare (n. -is) = sea"},
        {FifthDeclension,     7, "species (f) = sight; beauty"}};
    // clang-format on
    for (const auto& [paradigm, count, caption] : captions) {
        EXPECT_EQ(drawn.at(paradigm).size(), count) << caption;
        EXPECT_TRUE(drawn.at(paradigm).contains(caption)) << caption;
    }
}

// sic: French has but one heading of its own, German leaves out that of hortus, and neuter i-stems are headed
// in English. An unknown language changes nothing.
TEST_F(Nouns, AreHeadedInTheLanguageOfTheInterface)
{
    auto& headings = nounTables.DeclensionHeading;
    auto& captions = nounTables.NounCaptionList;
    const auto headed = [&](int number) {
        buildThirdDeclension(number);
        return "|" + headings[ThirdDeclension];
    };
    // clang-format off
    for (const auto& [language, expected] : {
        // puella, hortus, rex, nox, turris, and two captions
        std::pair{"French", "Première Déclenaison:|Second Declension:|Third Declension:|Third Declension (mixed):|Third Declension (i-stem):|before|dies (f) = day"},
        {"German", "1. Deklination:|before|3. Deklination:|3. Deklination (Mischdeklination):|3. Deklination (i-Stamm):|before|dies (f) = Tag"},
        {"Greek", "before|before|before|before|before|before|before"}}) {
        // clang-format on
        settings.CurrentLanguage = language;
        headings.fill("before");
        captions[FirstDeclension].fill("before");
        captions[FifthDeclension].fill("before");
        drawUntil(ThirdDeclensionNeuter, "mare");
        EXPECT_EQ(headings[ThirdDeclensionNeuter], "Third Declension (i-stem):");
        EXPECT_EQ(headings[FirstDeclension] + "|" + headings[SecondDeclensionUs] + headed(1) + headed(7) +
                      headed(9) + "|" + captions[FirstDeclension][1] + "|" + captions[FifthDeclension][2],
                  expected);
    }
}

// clang-format off
// For each drawn case, the cases that are right: N G D A B for the singular, n g d a b for the plural.
constexpr std::array<std::string_view, ParadigmCount> Expected = {
//   N    G    D    A    B     n    g d  a    b
    "NB   GDn  GDn  A    NB    GDn  g db a    db",  // puella
    "N    Gn   DB   A    DB    Gn   g db a    db",  // hortus
    "N    Gn   DB   A    DB    Gn   g db a    db",  // ager
    "NA   G    DB   NA   DB    na   g db na   db",  // donum
    "NGna NGna D    A    B     NGna g db NGna db",  // fructus
    "NDAB G    NDAB NDAB NDAB  na   g db na   db",  // cornu
    "Nna  GD   GD   A    B     Nna  g db Nna  db",  // dies
    "N    G    D    A    B     na   g db na   db",  // rex
    "NA   G    D    NA   B     na   g db na   db"}; // nomen
// clang-format on

TEST_F(Nouns, HaveSeveralCasesOfOneForm)
{
    const std::string letters = "NGDABngdab";
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = marks;
        for (int paradigm = 0; paradigm < ParadigmCount; ++paradigm) {
            std::string row(Expected.at(static_cast<std::size_t>(paradigm)));
            // The mark tells fru:ctus from fru:ctu:s.
            if (marks == platform::FlagTrue && paradigm + 1 == FourthDeclension)
                std::erase(row, 'N');
            std::istringstream words(row);
            for (int drawn = 0; drawn < CaseCount; ++drawn) {
                std::string cases;
                for (int i = 0; i < CaseCount; ++i)
                    if (casesOfOneForm(paradigm, drawn)[i] == platform::FlagTrue)
                        cases += letters.at(static_cast<std::size_t>(i));
                EXPECT_EQ(cases, *std::istream_iterator<std::string>(words)) << paradigm << ":" << drawn;
            }
        }
    }
}

TEST_F(Nouns, AreAskedInTheQuizButNeutersOfTheThirdAndAblativePlurals)
{
    readSamples(platform::FlagTrue);
    std::map<std::string, std::string> drawn;
    std::set<std::string> forms;
    for (int draws = 0; draws < 3000; ++draws) {
        drawNounQuestion();
        drawn[drawnIndexes()] = rightCasesInWords();
        if (askedNoun() == "fru:ctus -us (m) = fruit")
            forms.insert(askedForm());
    }
    EXPECT_EQ(drawn.size(), 72U);
    EXPECT_EQ(drawn.begin()->first + " " + drawn.rbegin()->first, "0:0 7:8");
    EXPECT_EQ(drawn["0:1"], "singular Genitive Dative Plural Nominative");
    EXPECT_EQ(drawn["2:7"], " Plural Dative Ablative");
    EXPECT_EQ(drawn["4:8"], "singular Genitive Plural Nominative Accusative");
    EXPECT_EQ(forms, (std::set<std::string>{"fru:ctus", "fru:ctu:s", "fru:ctui:", "fru:ctum",
                                            "fru:ctu:", "fru:ctuum", "fru:ctibus"}));
}

// One noun in every section.
const std::string SmallList = "title\n1\nf. -ae,stell,star,Stern,étoile,Spanish\n"
                              "heading,fields\n1\nm. -i,lu:d,game,g,f,Spanish\n"
                              "heading,fields\n1\nf. lucis,lu:x,lu:c,light,g,f,Spanish\n"
                              "heading,fields\n1\nm. -ri,cap,he-goat,g,f,Spanish\n"
                              "1\nn. -i,sax,rock,g,f,Spanish\n"
                              "heading,fields\n1\nn. -oris,pectus,breast,g,f,Spanish\n"
                              "heading,fields\n1\nn. -us,corn,horn,g,f,Spanish\n"
                              "heading,fields\n1\nf. -ei,r,thing,g,f,Spanish\n";

bool read(const std::string& text)
{
    nounList = {};
    tests::writeFile("nouns.cfg", text);
    return readNounList("nouns.cfg");
}

TEST_F(Nouns, AreReadSectionBySectionAndKeptWholeWhereverTheFileIsCutOff)
{
    EXPECT_TRUE(read(SmallList));
    int paradigm = FirstDeclension;
    for (const char* const stem : {"stell", "lud", "cap", "sax", "", "corn", "r", "lux", "pectus"})
        EXPECT_EQ(nounList.NounListStem[paradigm++][0], stem);
    EXPECT_EQ(nounAt(ThirdDeclension, 1),
              (NounRecord{"f. lucis", "lux", "luc", {"light", "g", "f", "Spanish"}}));
    EXPECT_EQ(nounList.NounListObliqueStem[ThirdDeclensionNeuter][0], "");
    int whole = 0;
    for (auto end = SmallList.find('\n'); end + 1 < SmallList.size();
         end = SmallList.find_first_of(",\n", end + 1)) {
        const std::string text = SmallList.substr(0, end);
        whole += text.ends_with(",Spanish") ? 1 : 0;
        EXPECT_FALSE(read(text)) << text;
        EXPECT_EQ(std::accumulate(nounList.NounCount.begin(), nounList.NounCount.end(), 0), whole) << text;
        BuildNounParadigms();
    }
}

// More nouns than a paradigm holds, or fewer than are counted.
TEST_F(Nouns, AreReadUpToACountThatCannotBe)
{
    std::string nouns;
    for (int number = 1; number <= 21; ++number)
        nouns += "m. -is,rex,reg,king,,,\n";
    // clang-format off
    for (const auto& [list, paradigm, counted] : {
             std::tuple{"title\nmany\n" + nouns, 1, 0}, {"title\n-3\n" + nouns, 1, 0}, {"title\n21\n" + nouns, 1, 20},
             {"title\n2\nf. -ae,stell,star,,,\n", 1, 1}, {"title\n0\nh,h\n0\nh,h\n11\n" + nouns, 8, 10}}) {
        // clang-format on
        EXPECT_FALSE(read(list)) << list;
        EXPECT_EQ(nounList.NounCount[paradigm], counted) << list;
        BuildNounParadigms();
    }
    EXPECT_FALSE(readNounList("none.cfg"));
}

} // namespace
