#include "nouns/declensions.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <iterator>
#include <set>
#include <sstream>
#include <vector>

namespace {

using namespace nouns;
using shell::settings;

class Declensions : public tests::FreshState {
protected:
    Declensions()
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

struct Page {
    int paradigm;
    std::string_view forms;
    int numberNeverDrawn = 0;
};

// clang-format off
// As a school grammar has them; the macron is written as a colon.
const std::vector<Page> Grammar = {
    //                        singular                                        plural
    //                        nom      gen       dat       acc       abl      nom        gen        dat         acc        abl
    {FirstDeclension,        "puella   puellae   puellae   puellam   puella:  puellae    puella:rum puelli:s    puella:s   puelli:s"},
    {FirstDeclension,        "dea      deae      deae      deam      dea:     deae       dea:rum    dea:bus     dea:s      dea:bus"},
    {SecondDeclensionUs,     "hortus   horti:    horto:    hortum    horto:   horti:     horto:rum  horti:s     horto:s    horti:s"},
    {SecondDeclensionEr,     "ager     agri:     agro:     agrum     agro:    agri:      agro:rum   agri:s      agro:s     agri:s"},
    {SecondDeclensionNeuter, "do:num   do:ni:    do:no:    do:num    do:no:   do:na      do:no:rum  do:ni:s     do:na      do:ni:s"},
    {FourthDeclension,       "fru:ctus fru:ctu:s fru:ctui: fru:ctum  fru:ctu: fru:ctu:s  fru:ctuum  fru:ctibus  fru:ctu:s  fru:ctibus"},
    {FourthDeclension,       "manus    manu:s    manui:    manum     manu:    manu:s     manuum     manibus     manu:s     manibus"},
    {FourthDeclensionNeuter, "cornu:   cornu:s   cornu:    cornu:    cornu:   cornua     cornuum    cornibus    cornua     cornibus"},
    // sic: every e and i of the endings is marked.
    {FifthDeclension,        "re:s     re:i:     re:i:     rem       re:      re:s       re:rum     re:bus      re:s       re:bus"},
    {FifthDeclension,        "die:s    die:i:    die:i:    diem      die:     die:s      die:rum    die:bus     die:s      die:bus"},
    {ThirdDeclension,        "re:x     re:gis    re:gi:    re:gem    re:ge    re:ge:s    re:gum     re:gibus    re:ge:s    re:gibus"},
    {ThirdDeclension,        "virtu:s  virtu:tis virtu:ti: virtu:tem virtu:te virtu:te:s virtu:tum  virtu:tibus virtu:te:s virtu:tibus"},
    // The neuters of the third declension are drilled by their endings.
    {ThirdDeclensionNeuter,  "no:men   is        i:        no:men    e        a          um         ibus        a          ibus"},
    {ThirdDeclensionNeuter,  "mare     is        i:        mare      i:       ia         ium        ibus        ia         ibus"},
    {ThirdDeclensionNeuter,  "animal   is        i:        animal    i:       ia         ium        ibus        ia         ibus"},
    // Never drawn, but declined where they are asked for by their numbers.
    {ThirdDeclension,        "urbs     urbis     urbi:     urbem     urbe     urbe:s     urbium     urbibus     urbe:s     urbibus", 6},
    {ThirdDeclension,        "nox      noctis    nocti:    noctem    nocte    nocte:s    noctium    noctibus    nocte:s    noctibus", 7},
    {ThirdDeclension,        "ars      artis     arti:     artem     arte     arte:s     artium     artibus     arte:s     artibus", 8},
    {ThirdDeclension,        "turris   turris    turri:    turrim    turri:   turre:s    turrium    turribus    turre:s    turribus", 9},
};
// clang-format on

TEST_F(Declensions, AreThoseOfTheGrammarWithMarksAndWithout)
{
    for (const platform::Flag marks : {platform::FlagTrue, platform::FlagFalse}) {
        readSamples(marks);
        BuildNounParadigms();
        for (const auto& [paradigm, forms, number] : Grammar) {
            std::string page(forms);
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

// sic: never the mixed nouns and the i-stem of the third declension, and captions of the neuters without
// meaning.
TEST_F(Declensions, DrawEveryOtherNounAndAreCaptionedWithGenderAndMeaning)
{
    const std::array<std::size_t, ParadigmCount + 1> counts = {0, 12, 10, 10, 15, 5, 2, 7, 6, 8};
    std::array<std::set<std::string>, ParadigmCount + 1> drawn;
    for (int draws = 0; draws < 1500; ++draws) {
        BuildNounParadigms();
        for (std::size_t paradigm = 1; paradigm < drawn.size(); ++paradigm)
            drawn.at(paradigm).insert(nounTables.NounCaption[static_cast<int>(paradigm)]);
    }
    for (std::size_t paradigm = 1; paradigm < drawn.size(); ++paradigm)
        EXPECT_EQ(drawn.at(paradigm).size(), counts.at(paradigm)) << paradigm;
    EXPECT_EQ(drawn[ThirdDeclension],
              (std::set<std::string>{"rex (m. regis) = king", "miles (m. -itis) = soldier",
                                     "vox (f. vocis) = voice", "dux (m. ducis) = leader",
                                     "homo (m. -inis) = man", "virtus (f. -utis) = virtue"}));
    const std::vector<std::pair<NounParadigm, std::string>> captions = {
        {FirstDeclension, "puella  (f. -ae) = girl"},
        {SecondDeclensionUs, "hortus  (m. -i) = garden"},
        {SecondDeclensionEr, "ager  (m. -ri) = field"},
        {SecondDeclensionNeuter, "bellum  (n. -i) =  + EnglNTrans4(X)"},
        {ThirdDeclensionNeuter, "mare (n. -is) = sea"},
        {FourthDeclension, "fructus -us (m) = fruit"},
        {FourthDeclensionNeuter, "genu -us (n) = knee"},
        {FifthDeclension, "species (f) = sight; beauty"}};
    for (const auto& [paradigm, caption] : captions)
        EXPECT_TRUE(drawn.at(paradigm).contains(caption)) << caption;
}

// sic: French has but one heading of its own, German leaves out that of hortus, and neuter i-stems are headed
// in English. An unknown language changes nothing.
TEST_F(Declensions, AreHeadedInTheLanguageOfTheInterface)
{
    // clang-format off
    const std::vector<std::vector<std::string>> languages = {
        //         puella                  hortus                mare                         rex                  nox                                   turris                        and two captions
        {"French", "Première Déclenaison:", "Second Declension:", "Third Declension (i-stem):", "Third Declension:", "Third Declension (mixed):",          "Third Declension (i-stem):", "before", "dies (f) = day"},
        {"German", "1. Deklination:",       "before",             "Third Declension (i-stem):", "3. Deklination:",   "3. Deklination (Mischdeklination):", "3. Deklination (i-Stamm):",  "before", "dies (f) = Tag"},
        {"Greek",  "before",                "before",             "Third Declension (i-stem):", "before",            "before",                             "before",                     "before", "before"},
    };
    // clang-format on
    auto& headings = nounTables.DeclensionHeading;
    auto& captions = nounTables.NounCaptionList;
    for (const auto& expected : languages) {
        settings.CurrentLanguage = expected.front();
        headings.fill("before");
        captions[FirstDeclension].fill("before");
        captions[FifthDeclension].fill("before");
        drawUntil(ThirdDeclensionNeuter, "mare");
        std::vector<std::string> texts = {settings.CurrentLanguage, headings[FirstDeclension],
                                          headings[SecondDeclensionUs], headings[ThirdDeclensionNeuter]};
        for (const int number : {1, 7, 9}) {
            buildThirdDeclension(number);
            texts.push_back(headings[ThirdDeclension]);
        }
        texts.insert(texts.end(), {captions[FirstDeclension][1], captions[FifthDeclension][2]});
        EXPECT_EQ(texts, expected);
    }
}

} // namespace
