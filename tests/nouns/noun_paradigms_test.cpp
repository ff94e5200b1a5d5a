#include "nouns/declensions.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace {

using namespace nouns;
using shell::settings;

class NounParadigms : public tests::FreshState {
protected:
    NounParadigms() { readSamples(platform::FlagFalse); }

    void readSamples(platform::Flag marks)
    {
        if (!std::filesystem::exists("nouns.cfg"))
            tests::copySample("nouns.cfg");
        settings.ShowVowelLength = marks;
        settings.VowelMark.clear();
        readNounList("nouns.cfg");
        nounList.NounCount[FourthDeclension] = 5;
    }

    // Draws until the noun of a paradigm has this nominative.
    void drawUntil(int paradigm, const std::string& nominative)
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
    std::array<std::string, CaseCount> forms;
};

// clang-format off
// As a school grammar has them; the macron is written as a colon.
const std::vector<Page> Grammar = {
    //                        nominative  genitive     dative       accusative   ablative
    {FirstDeclension,        {"puella",   "puellae",   "puellae",   "puellam",   "puella:",
                              "puellae",  "puella:rum","puelli:s",  "puella:s",  "puelli:s"}},
    {FirstDeclension,        {"dea",      "deae",      "deae",      "deam",      "dea:",
                              "deae",     "dea:rum",   "dea:bus",   "dea:s",     "dea:bus"}},
    {SecondDeclensionUs,     {"hortus",   "horti:",    "horto:",    "hortum",    "horto:",
                              "horti:",   "horto:rum", "horti:s",   "horto:s",   "horti:s"}},
    {SecondDeclensionEr,     {"ager",     "agri:",     "agro:",     "agrum",     "agro:",
                              "agri:",    "agro:rum",  "agri:s",    "agro:s",    "agri:s"}},
    {SecondDeclensionNeuter, {"do:num",   "do:ni:",    "do:no:",    "do:num",    "do:no:",
                              "do:na",    "do:no:rum", "do:ni:s",   "do:na",     "do:ni:s"}},
    {FourthDeclension,       {"fru:ctus", "fru:ctu:s", "fru:ctui:", "fru:ctum",  "fru:ctu:",
                              "fru:ctu:s","fru:ctuum", "fru:ctibus","fru:ctu:s", "fru:ctibus"}},
    {FourthDeclension,       {"manus",    "manu:s",    "manui:",    "manum",     "manu:",
                              "manu:s",   "manuum",    "manibus",   "manu:s",    "manibus"}},
    {FourthDeclensionNeuter, {"cornu:",   "cornu:s",   "cornu:",    "cornu:",    "cornu:",
                              "cornua",   "cornuum",   "cornibus",  "cornua",    "cornibus"}},
    // The drill marks every e: and i: of the endings.
    {FifthDeclension,        {"re:s",     "re:i:",     "re:i:",     "rem",       "re:",
                              "re:s",     "re:rum",    "re:bus",    "re:s",      "re:bus"}},
    {FifthDeclension,        {"die:s",    "die:i:",    "die:i:",    "diem",      "die:",
                              "die:s",    "die:rum",   "die:bus",   "die:s",     "die:bus"}},
    {ThirdDeclension,        {"re:x",     "re:gis",    "re:gi:",    "re:gem",    "re:ge",
                              "re:ge:s",  "re:gum",    "re:gibus",  "re:ge:s",   "re:gibus"}},
    {ThirdDeclension,        {"virtu:s",  "virtu:tis", "virtu:ti:", "virtu:tem", "virtu:te",
                              "virtu:te:s","virtu:tum","virtu:tibus","virtu:te:s","virtu:tibus"}},
    // The neuters of the third declension are drilled by their endings.
    {ThirdDeclensionNeuter,  {"no:men",   "is",        "i:",        "no:men",    "e",
                              "a",        "um",        "ibus",      "a",         "ibus"}},
    {ThirdDeclensionNeuter,  {"mare",     "is",        "i:",        "mare",      "i:",
                              "ia",       "ium",       "ibus",      "ia",        "ibus"}},
    {ThirdDeclensionNeuter,  {"animal",   "is",        "i:",        "animal",    "i:",
                              "ia",       "ium",       "ibus",      "ia",        "ibus"}},
};

// Never drawn, but declined where they are asked for.
const std::map<int, Page> MixedAndIStems = {
    {6, {ThirdDeclension, {"urbs",   "urbis",   "urbi:",   "urbem",   "urbe",
                           "urbe:s", "urbium",  "urbibus", "urbe:s",  "urbibus"}}},
    {7, {ThirdDeclension, {"nox",    "noctis",  "nocti:",  "noctem",  "nocte",
                           "nocte:s","noctium", "noctibus","nocte:s", "noctibus"}}},
    {8, {ThirdDeclension, {"ars",    "artis",   "arti:",   "artem",   "arte",
                           "arte:s", "artium",  "artibus", "arte:s",  "artibus"}}},
    {9, {ThirdDeclension, {"turris", "turris",  "turri:",  "turrim",  "turri:",
                           "turre:s","turrium", "turribus","turre:s", "turribus"}}},
};
// clang-format on

std::array<std::string, CaseCount> formsOf(int paradigm)
{
    std::array<std::string, CaseCount> forms;
    std::copy_n(nounTables.NounForms[paradigm].begin() + 1, CaseCount, forms.begin());
    return forms;
}

TEST_F(NounParadigms, AreThoseOfTheGrammarWithMarksAndWithout)
{
    for (const platform::Flag marks : {platform::FlagTrue, platform::FlagFalse}) {
        readSamples(marks);
        for (auto [paradigm, forms] : Grammar) {
            if (marks == platform::FlagFalse)
                for (std::string& form : forms)
                    std::erase(form, ':');
            drawUntil(paradigm, forms[0]);
            EXPECT_EQ(formsOf(paradigm), forms);
        }
    }
}

TEST_F(NounParadigms, HaveMixedNounsAndAnIStemByTheirNumbers)
{
    readSamples(platform::FlagTrue);
    settings.VowelMark = ":";
    for (const auto& [number, page] : MixedAndIStems) {
        buildThirdDeclension(number);
        EXPECT_EQ(formsOf(ThirdDeclension), page.forms);
        EXPECT_EQ(nounTables.DeclensionHeading[ThirdDeclension],
                  number == 9 ? "Third Declension (i-stem):" : "Third Declension (mixed):");
    }
}

TEST_F(NounParadigms, DrawEveryNounButTheMixedOnesAndTheIStem)
{
    std::array<std::set<std::string>, ParadigmCount + 1> drawn;
    for (int draws = 0; draws < 1500; ++draws) {
        BuildNounParadigms();
        for (int paradigm = FirstDeclension; paradigm <= ParadigmCount; ++paradigm)
            drawn.at(static_cast<std::size_t>(paradigm)).insert(nounTables.NounForms[paradigm][1]);
    }
    constexpr std::array<std::size_t, ParadigmCount + 1> expected = {0, 12, 10, 10, 15, 5, 2, 7, 6, 8};
    for (std::size_t paradigm = FirstDeclension; paradigm <= ParadigmCount; ++paradigm)
        EXPECT_EQ(drawn.at(paradigm).size(), expected.at(paradigm)) << paradigm;
    EXPECT_EQ(drawn[ThirdDeclension],
              (std::set<std::string>{"rex", "miles", "vox", "dux", "homo", "virtus"}));
}

TEST_F(NounParadigms, TakeTheFirstNounWhereThereIsNone)
{
    nounList = {};
    BuildNounParadigms();
    EXPECT_EQ(nounTables.NounForms[FirstDeclension][NominativeSingular], "a");
    EXPECT_EQ(nounTables.NounForms[FourthDeclension][NominativeSingular], "fructus");
    EXPECT_EQ(nounTables.NounCaption[FourthDeclension], "fructus -us (m) = fruit");
    EXPECT_EQ(nounTables.NounForms[ThirdDeclension][NominativeSingular], "");
}

TEST_F(NounParadigms, MarkOnlyWhereTheSettingSaysSoAndNeverUnmark)
{
    settings.VowelMark = ":";
    BuildNounParadigms();
    EXPECT_EQ(nounTables.NounEndings[FirstDeclension][AblativeSingular], "a:");
    settings.ShowVowelLength = 1;
    settings.VowelMark.clear();
    BuildNounParadigms();
    EXPECT_EQ(nounTables.NounEndings[FirstDeclension][AblativeSingular], "a");
}

TEST_F(NounParadigms, SetTheInfixOfTheNounInUsIntoTheNounInEr)
{
    nounTables.ErInfix.fill("e");
    nounList.NounCount[SecondDeclensionUs] = 11;
    nounList.NounListStem[SecondDeclensionUs][10] = "eleventh";
    drawUntil(SecondDeclensionUs, "hortus");
    EXPECT_EQ(nounTables.NounEndings[SecondDeclensionEr][NominativeSingular], "er");
    EXPECT_EQ(nounTables.NounEndings[SecondDeclensionEr][GenitiveSingular], "eri");
    drawUntil(SecondDeclensionUs, "eleventhus");
    EXPECT_EQ(nounTables.NounEndings[SecondDeclensionEr][GenitiveSingular], "ri");
}

TEST_F(NounParadigms, AreCaptionedWithGenderAndMeaning)
{
    settings.ShowVowelLength = platform::FlagTrue;
    BuildNounParadigms();
    const auto& captions = nounTables.NounCaptionList;
    EXPECT_EQ(captions[FirstDeclension][1], "puella  (f. -ae) = girl");
    EXPECT_EQ(captions[SecondDeclensionNeuter][1], "bellum  (n. -i) =  + EnglNTrans4(X)");
    EXPECT_EQ(captions[ThirdDeclension][1], "rex (m. regis) = king");
    EXPECT_EQ(captions[ThirdDeclensionNeuter][4], "mare (n. -is) = sea");
    EXPECT_EQ(captions[FourthDeclension][1], "fru:ctus -us (m) = fruit");
    EXPECT_EQ(captions[FifthDeclension][5], "species (f) = sight; beauty");
}

struct InLanguage {
    std::string language;
    std::array<std::string, 4> headings; // of puella, hortus, ager and rex
    std::string dayCaption;
    bool listsItsNouns;
};

// French has but one heading of its own; German leaves out that of hortus; an unknown language changes
// nothing.
TEST_F(NounParadigms, AreHeadedInTheLanguageOfTheInterface)
{
    // clang-format off
    const std::vector<InLanguage> languages = {
        {"Italian", {"First Declension:",     "Second Declension:", "Second Declension:", "Third Declension:"}, "dies (f) = day", true},
        {"French",  {"Première Déclenaison:", "Second Declension:", "Second Declension:", "Third Declension:"}, "dies (f) = day", false},
        {"German",  {"1. Deklination:",       "before",             "2. Deklination:",    "3. Deklination:"},   "dies (f) = Tag", false},
        {"Latin",   {"Prima Declinatio:",     "Secunda Declinatio:","Secunda Declinatio:","Tertia Declinatio:"},"dies (f)",       false},
        {"Greek",   {"before",                "before",             "before",             "before"},            "before",         false},
    };
    // clang-format on
    for (const auto& [language, headings, dayCaption, listsItsNouns] : languages) {
        settings.CurrentLanguage = language;
        nounTables.DeclensionHeading.fill("before");
        nounTables.NounCaptionList[FifthDeclension].fill("before");
        nounTables.NounCaptionList[FirstDeclension].fill("before");
        BuildNounParadigms();
        std::size_t i = 0;
        for (const int paradigm : {FirstDeclension, SecondDeclensionUs, SecondDeclensionEr, ThirdDeclension})
            EXPECT_EQ(nounTables.DeclensionHeading[paradigm], headings.at(i++)) << language << paradigm;
        EXPECT_EQ(nounTables.NounCaptionList[FifthDeclension][2], dayCaption);
        EXPECT_EQ(nounTables.NounCaptionList[FirstDeclension][1] != "before", listsItsNouns) << language;
    }
}

TEST_F(NounParadigms, AreHeadedAsMixedAndIStemsInTheLanguageButForNeuters)
{
    for (const auto& [language, mixed, iStem] :
         {std::tuple{"French", "Third Declension (mixed):", "Third Declension (i-stem):"},
          {"German", "3. Deklination (Mischdeklination):", "3. Deklination (i-Stamm):"}}) {
        settings.CurrentLanguage = language;
        buildThirdDeclension(6);
        EXPECT_EQ(nounTables.DeclensionHeading[ThirdDeclension], mixed);
        buildThirdDeclension(9);
        EXPECT_EQ(nounTables.DeclensionHeading[ThirdDeclension], iStem);
        drawUntil(ThirdDeclensionNeuter, "mare");
        EXPECT_EQ(nounTables.DeclensionHeading[ThirdDeclensionNeuter], "Third Declension (i-stem):");
    }
}

} // namespace
