#include "nouns/noun_list_file.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace {

using namespace nouns;
using NounQuestion = tests::FreshState;

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

TEST_F(NounQuestion, GroupsTheCasesOfOneForm)
{
    const std::string letters = "NGDABngdab";
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        shell::settings.ShowVowelLength = marks;
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

TEST_F(NounQuestion, AsksNeitherNeutersOfTheThirdNorAblativePluralsAndSaysTheCasesInWords)
{
    shell::settings.ShowVowelLength = platform::FlagTrue;
    tests::copySample("nouns.cfg");
    readNounList("nouns.cfg");
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

} // namespace
