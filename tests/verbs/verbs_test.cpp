#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/generators.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <sstream>
#include <vector>

namespace {

using namespace verbs;
using shell::settings;

using Verbs = tests::FreshState;

struct Model {
    int verbClass;
    std::string present, perfect, supine, infinitive, imperfect, imperative, imperativePlural;
};

// clang-format off
const std::vector<Model> Models = {
    //     present, perfect and supine stem; infinitive; stem of the imperfect; imperatives
    {1, "am",  "ama:v",  "ama:t",  "ama:re",  "ama:",   "ama:",  "ama:te"},
    {2, "mon", "monu",   "monit",  "mone:re", "mone:",  "mone:", "mone:te"},
    {3, "reg", "re:x",   "re:ct",  "regere",  "rege:",  "rege",  "regite"},
    {4, "aud", "audi:v", "audi:t", "audi:re", "audie:", "audi:", "audite"}, // sic: audite
    {5, "cap", "ce:p",   "capt",   "capere",  "capie:", "cape",  "capite"},
    {6, "",    "fu",     "",       "esse",    "",       "es",    "este"},
    {7, "",    "volu",   "",       "velle",   "vole:",  "",      ""},
    {8, "",    "tul",    "la:t",   "ferre",   "fere:",  "fer",   "ferte"},
};

// The pages of a grammar: class, tense, and the forms from the first singular to the third plural, with a colon
// after each long vowel.
const std::map<std::pair<int, int>, std::string> Pages = {
    // amo:, ama:re, ama:vi:, ama:tum (to love). Every verb has these endings in the perfect system.
    {{1, PresentIndicative},           "amo:       ama:s       amat       ama:mus       ama:tis       amant"},
    {{1, ImperfectIndicative},         "ama:bam    ama:ba:s    ama:bat    ama:ba:mus    ama:ba:tis    ama:bant"},
    {{1, FutureIndicative},            "ama:bo:    ama:bis     ama:bit    ama:bimus     ama:bitis     ama:bunt"},
    {{1, PerfectIndicative},           "ama:vi:    ama:visti:  ama:vit    ama:vimus     ama:vistis    ama:ve:runt"},
    {{1, PluperfectIndicative},        "ama:veram  ama:vera:s  ama:verat  ama:vera:mus  ama:vera:tis  ama:verant"},
    {{1, FuturePerfectIndicative},     "ama:vero:  ama:veris   ama:verit  ama:verimus   ama:veritis   ama:verint"},
    {{1, PresentSubjunctive},          "amem       ame:s       amet       ame:mus       ame:tis       ament"},
    {{1, ImperfectSubjunctive},        "ama:rem    ama:re:s    ama:ret    ama:re:mus    ama:re:tis    ama:rent"},
    {{1, PerfectSubjunctive},          "ama:verim  ama:veri:s  ama:verit  ama:veri:mus  ama:veri:tis  ama:verint"},
    {{1, PluperfectSubjunctive},       "ama:vissem ama:visse:s ama:visset ama:visse:mus ama:visse:tis ama:vissent"},
    {{1, PassivePresentIndicative},    "amor       ama:ris     ama:tur    ama:mur       ama:mini:     ama:ntur"}, // sic
    {{1, PassiveImperfectIndicative},  "ama:bar    ama:ba:ris  ama:ba:tur ama:ba:mur    ama:ba:mini:  ama:bantur"},
    {{1, PassiveFutureIndicative},     "ama:bor    ama:beris   ama:bitur  ama:bimur     ama:bimini:   ama:buntur"},
    {{1, PassivePresentSubjunctive},   "amer       ame:ris     ame:tur    ame:mur       ame:mini:     ame:ntur"}, // sic
    {{1, PassiveImperfectSubjunctive}, "ama:rer    ama:re:ris  ama:re:tur ama:re:mur    ama:re:mini:  ama:rentur"},
    // moneo:, mone:re, monui:, monitum (to warn).
    {{2, PresentIndicative},         "moneo: mone:s    monet     mone:mus  mone:tis    monent"},
    {{2, PresentSubjunctive},        "moneam monea:s   moneat    monea:mus monea:tis   moneant"},
    {{2, PassivePresentIndicative},  "moneor mone:ris  mone:tur  mone:mur  mone:mini:  monentur"},
    {{2, PassivePresentSubjunctive}, "monear monea:ris monea:tur monea:mur monea:mini: moneantur"},
    // rego:, regere, re:xi:, re:ctum (to rule).
    {{3, PresentIndicative},         "rego: regis    regit    regi:mus regi:tis   regunt"}, // sic
    {{3, FutureIndicative},          "regam rege:s   reget    rege:mus rege:tis   regent"},
    {{3, PresentSubjunctive},        "regam rega:s   regat    rega:mus rega:tis   regant"},
    {{3, PassivePresentIndicative},  "regor regeris  regitur  regimur  regimini:  reguntur"},
    {{3, PassiveFutureIndicative},   "regar rege:ris rege:tur rege:mur rege:mini: regentur"},
    {{3, PassivePresentSubjunctive}, "regar rega:ris rega:tur rega:mur rega:mini: regantur"},
    // audio:, audi:re, audi:vi:, audi:tum (to hear).
    {{4, PresentIndicative},         "audio:    audi:s     audit     audi:mus     audi:tis     audiunt"},
    {{4, ImperfectIndicative},       "audie:bam audie:ba:s audie:bat audie:ba:mus audie:bat:is audie:bant"}, // sic
    {{4, FutureIndicative},          "audiam    audie:s    audiet    audie:mus    audie:tis    audient"},
    {{4, PresentSubjunctive},        "audiam    audia:s    audiat    audia:mus    audia:tis    audiant"},
    {{4, PassivePresentIndicative},  "audior    audi:ris   audi:tur  audi:mur     audi:mini    audiuntur"}, // sic
    {{4, PassiveFutureIndicative},   "audiar    audie:ris  audie:tur audie:mur    audie:mini:  audientur"},
    {{4, PassivePresentSubjunctive}, "audiar    audia:ris  audia:tur audia:mur    audia:mini:  audia:ntur"}, // sic
    // capio:, capere, ce:pi:, captum (to take).
    {{5, PresentIndicative},         "capio: capis     capit     capimus   capitis     capiunt"},
    {{5, FutureIndicative},          "capiam capie:s   capiet    capie:mus capie:tis   capient"},
    {{5, PresentSubjunctive},        "capiam capia:s   capiat    capia:mus capia:tis   capiant"},
    {{5, PassivePresentIndicative},  "capior caperis   capitur   capimur   capimini:   capiuntur"},
    {{5, PassiveFutureIndicative},   "capiar capie:ris capie:tur capie:mur capie:mini: capientur"},
    {{5, PassivePresentSubjunctive}, "capiar capia:ris capia:tur capia:mur capia:mini: capia:ntur"}, // sic
    // sum, esse, fui: (to be). It has no passive, and is part of the other verbs' compound tenses.
    {{6, PresentIndicative},    "sum   es     est   sumus    estis    sunt"},
    {{6, ImperfectIndicative},  "eram  era:s  erat  era:mus  era:tis  erant"},
    {{6, FutureIndicative},     "ero:  eris   erit  erimus   eritis   erunt"},
    {{6, PresentSubjunctive},   "sim   si:s   sit   si:mus   si:tis   sint"},
    {{6, ImperfectSubjunctive}, "essem esse:s esset esse:mus esse:tis essent"},
    // volo:, velle, volui: (to want). It has neither imperative nor passive.
    {{7, PresentIndicative},  "volo: vi:s   vult  volumus  vultis   volunt"},
    {{7, FutureIndicative},   "volam vole:s volet vole:mus vole:tis volent"},
    {{7, PresentSubjunctive}, "velim veli:s velit veli:mus veli:tis velint"},
    // fero:, ferre, tuli:, la:tum (to bear).
    {{8, PresentIndicative},          "fero:   fers       fert       ferimus    fertis       ferunt"},
    {{8, FutureIndicative},           "feram   fere:s     feret      fere:mus   fere:tis     ferent"},
    {{8, PresentSubjunctive},         "feram   fera:s     ferat      fera:mus   fera:tis     ferant"},
    {{8, PassivePresentIndicative},   "feror   ferris     fertur     ferimur    ferimini:    feruntur"},
    {{8, PassiveImperfectIndicative}, "ferebar fereba:ris fereba:tur fereba:mur fereba:mini: ferebantur"}, // sic
    {{8, PassiveFutureIndicative},    "ferar   fere:ris   fere:tur   fere:mur   fere:mini:   ferentur"},
    {{8, PassivePresentSubjunctive},  "ferar   fera:ris   fera:tur   fera:mur   fera:mini:   ferantur"},
};
// clang-format on

std::string formOnPage(int verbClass, int tense, int person)
{
    std::istringstream words(Pages.at({verbClass, tense}));
    return *std::next(std::istream_iterator<std::string>(words), person - 1);
}

// A form as the verb's page has it; where that leaves out the tense, it goes like ama:-bam (the future of
// moneo:, too, like ama:-bo:), ama:re-m, ama:v-i:, ama:t-us sum.
std::string formOf(const Model& verb, int tense, int person)
{
    if (Pages.contains({verb.verbClass, tense}))
        return formOnPage(verb.verbClass, tense, person);
    if (tense == Imperative)
        return person == SecondSingular ? verb.imperative
               : person == SecondPlural ? verb.imperativePlural
                                        : "";
    if (tense > Imperative && verb.supine.empty())
        return "";
    if (tense == ImperfectIndicative || tense == FutureIndicative || tense == PassiveImperfectIndicative ||
        tense == PassiveFutureIndicative)
        return verb.imperfect + formOnPage(FirstConjugation, tense, person).substr(4);
    if (tense == ImperfectSubjunctive || tense == PassiveImperfectSubjunctive)
        return verb.infinitive + formOnPage(FirstConjugation, tense, person).substr(6);
    if (tense < Imperative)
        return verb.perfect + formOnPage(FirstConjugation, tense, person).substr(5);
    // sic: amo: names the three genders in the singular, moneo: in its first four compound forms alone.
    const int lastWithGenders = verb.verbClass == 1 ? 126 : verb.verbClass == 2 ? 91 : 0;
    const bool genders = formNumber(tense, person) <= lastWithGenders;
    const std::string participle = person > ThirdSingular ? "i: " : genders ? "us -a -um " : "us ";
    const int ofSum = tense - (tense < PassivePresentSubjunctive ? 14 : 13); // sum, eram, ero:, sim, essem
    return verb.supine + participle + formOnPage(Esse, ofSum, person);
}

TEST_F(Verbs, AreConjugatedAsOnThePagesOfAGrammarOverTheVerbBeforeWithMarksAndWithout)
{
    for (const Model& verb : Models)
        std::fill_n(verbTables.Forms[verb.verbClass].begin() + 1, verb.supine.empty() ? 66 : 126, "stale");
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = marks;
        const auto shown = [=](std::string text) {
            if (marks == platform::FlagFalse)
                std::erase(text, ':');
            return text;
        };
        for (const auto& [verbClass, present, perfect, supine, infinitive, imperfect, singular, plural] :
             Models)
            if (verbClass <= LastRegularClass)
                storeVerb(verbClass, 1, {present, perfect, supine, {}});
        verbdrills::generateParadigms();
        for (const Model& verb : Models) {
            for (int form = 0; form < FormCount; ++form)
                EXPECT_EQ(verbTables.Forms[verb.verbClass][form + 1],
                          shown(formOf(verb, form / 6 + 1, form % 6 + 1)));
            EXPECT_EQ(verbTables.Infinitive[verb.verbClass], shown(verb.infinitive));
        }
    }
}

TEST_F(Verbs, HaveAShortImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    for (const std::string imperative : {"dic", "duc", "du:c", "di:c-e", "fac-e", "fer-e"}) {
        const std::string stem = imperative.substr(0, imperative.find('-'));
        for (const int verbClass : {ThirdConjugation, ThirdIoConjugation})
            storeVerb(verbClass, 1, {stem, "", "", {}});
        verbdrills::generateParadigms();
        EXPECT_EQ(verbTables.Forms[ThirdConjugation][62], imperative == stem ? stem : stem + "e");
        EXPECT_EQ(verbTables.Forms[ThirdIoConjugation][62], stem + "e");
    }
}

using Counts = std::vector<int>; // by class

// A list with so many verbs of each class, the -io verbs before the fourth conjugation. The fields of a verb
// name its class and number.
std::string listOf(const Counts& counts, const std::string& separator = "\n")
{
    std::string text;
    for (const std::size_t verbClass : {1U, 2U, 3U, 5U, 4U}) {
        text += "heading" + separator + std::to_string(counts.at(verbClass - 1)) + separator;
        for (int number = 1; number <= counts.at(verbClass - 1); ++number)
            for (const char* const field : {"pre:s", "su:p", "pe:rf", "be", "was", "been", "being"})
                text += std::to_string(verbClass) + std::to_string(number) + field + separator;
        text += "heading" + separator;
    }
    return text;
}

bool read(const std::string& text)
{
    tests::writeFile("verbs.cfg", text);
    return readVerbList("verbs.cfg");
}

// Every verb that is counted stands in the list whole. Returns the counts by class.
Counts expectEveryVerb()
{
    for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbList.Count[verbClass]; ++number) {
            const std::string n = std::to_string(verbClass) + std::to_string(number);
            const VerbRecord expected = {
                n + "pres", n + "perf", n + "sup", {n + "be", n + "was", n + "been", n + "being"}};
            EXPECT_EQ(verbAt(verbClass, number), expected) << n;
        }
    return {verbList.Count.begin() + 1, verbList.Count.end()};
}

// The list holds fifteen verbs of each class, and counts fewer. The clock stands still: seeding anew must
// still lead to new verbs. An empty list yields its first verb.
TEST_F(Verbs, AreAllDrawnWithTheirStemsAndTranslations)
{
    settings.CurrentLanguage = "German";
    read(listOf({15, 15, 15, 15, 15}));
    std::ranges::copy(std::array<std::int16_t, 6>{0, 15, 7, 1, 4, 0}, verbList.Count.begin());
    for (auto& german : verbList.German)
        for (int place = 0; place < MostVerbs; ++place)
            german[place] = std::to_string(place + 1);
    std::set<std::string> drawn;
    for (int run = 0; run < 400; ++run) {
        verbdrills::generateParadigms();
        for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass) {
            const std::string base = verbTables.BaseGloss[verbClass];
            const std::string n = base.substr(0, base.find('b'));
            const auto& forms = verbTables.Forms[verbClass];
            EXPECT_EQ(forms[21] + forms[88] + verbTables.Infinitive[verbClass].substr(0, n.size() + 4) +
                          verbTables.PastGloss[verbClass] + verbTables.ParticipleGloss[verbClass] +
                          verbTables.PresentParticipleGloss[verbClass],
                      n + "perfit" + n + "supi sumus" + n + "pres" + n + "was" + n + "been" + n + "being");
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? ""
                                                             : n == "44"    ? "gräbe"
                                                                            : n.substr(1));
            drawn.insert(n);
        }
    }
    EXPECT_EQ(drawn.size(), 15U + 7 + 1 + 4 + 1);
    EXPECT_TRUE(drawn.contains("115") && drawn.contains("27") && drawn.contains("44"));
}

TEST_F(Verbs, AreReadBySectionsWhateverEndsTheFieldsAndAgainWithTwoCountsSwapped)
{
    for (const char* const separator : {"\n", "\r\n", "\r", ",", " , ", "\t\n  "}) {
        verbList = {};
        EXPECT_TRUE(read("\xEF\xBB\xBF" + listOf({2, 1, 3, 15, 2}, separator)));
        EXPECT_EQ(expectEveryVerb(), (Counts{2, 1, 3, 15, 2}));
        EXPECT_TRUE(readVerbListAgain("verbs.cfg"));
        EXPECT_EQ(verbList.Count[FourthConjugation], 2);
        EXPECT_EQ(verbList.Count[ThirdIoConjugation], 15);
        EXPECT_EQ(verbAt(ThirdIoConjugation, 3).presentStem, "");
    }
}

TEST_F(Verbs, AreReadUpToAFaultOrACountThatCannotBeAndKeptFromBefore)
{
    const Counts all = {2, 1, 2, 2, 2};
    const std::string list = listOf(all);
    long whole = 0;
    for (std::size_t end = 0; end < list.rfind("being"); end = list.find('\n', end + 1)) {
        const std::string text = list.substr(0, end);
        whole += text.ends_with("being") ? 1 : 0;
        verbList = {};
        EXPECT_FALSE(read(text)) << text;
        const Counts counts = expectEveryVerb();
        EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), 0), whole) << text;
        read(list);
        EXPECT_FALSE(read(text) || readVerbListAgain("verbs.cfg")) << text;
        EXPECT_EQ(expectEveryVerb(), all) << text;
    }
    EXPECT_FALSE(readVerbList("none.cfg"));
    for (const auto& [count, counted] : {std::pair{"16", 15}, {"32767", 15}, {"-1", 0}, {"x", 0}}) {
        verbList = {};
        EXPECT_FALSE(read(listOf({16, 0, 0, 0, 0}).replace(8, 2, count))) << count;
        EXPECT_EQ(expectEveryVerb(), (Counts{counted, 0, 0, 0, 0})) << count;
    }
}

TEST_F(Verbs, AreFollowedByTheEditsOfTheLearner)
{
    read(listOf({2, 14, 0, 0, 0}));
    settings.ShowVowelLength = platform::FlagTrue;
    const VerbRecord leads = {"du:c", "du:x", "duct", {"lead", "led", "led", "leading"}};
    EXPECT_EQ(editVerb(1, 2, leads), VerbEdit::Stored); // in place of the second verb
    for (const auto& added : {VerbRecord{"du:", "", "", {}}, leads})
        EXPECT_EQ(editVerb(2, 15, added), VerbEdit::Stored);
    EXPECT_EQ(editVerb(2, 16, leads), VerbEdit::ListFull);
    EXPECT_EQ(editVerb(3, 1, {"", "x", "x", {}}), VerbEdit::NoPresentStem);
    EXPECT_EQ(listedInfinitive(2, 15), "du:cere");

    // Marks come back only to stems that were edited without them.
    for (const auto& [shown, perfect] :
         {std::pair{platform::FlagFalse, "11pe:rflike"}, {platform::FlagTrue, "11perflike"}}) {
        settings.ShowVowelLength = shown;
        editVerb(1, 1, {"11pres", "11perf", "11sup", {"like", "", "", ""}});
        settings.ShowVowelLength = platform::FlagTrue;
        EXPECT_TRUE(readVerbListAgain("verbs.cfg"));
        EXPECT_EQ(verbList.Count[2], 14);
        repeatVerbEdits();
        EXPECT_EQ(verbAt(1, 1).perfectStem + verbAt(1, 1).translations.front(), perfect);
        EXPECT_EQ(verbList.Count[1], 2);
        EXPECT_EQ(verbList.Count[2], 15);
        EXPECT_EQ(verbAt(1, 2), leads);
        EXPECT_EQ(verbAt(2, 15), leads);
    }
}

} // namespace
