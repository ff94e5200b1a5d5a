#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/generators.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace {

using namespace verbs;
using shell::settings;

using Generators = tests::FreshState;

struct Model {
    int verbClass;
    std::string present, perfect, supine, infinitive, imperative, imperativePlural;
};

// clang-format off
const std::vector<Model> Models = {
    {1, "am",  "ama:v",  "ama:t",  "ama:re",  "ama:",  "ama:te"},
    {2, "mon", "monu",   "monit",  "mone:re", "mone:", "mone:te"},
    {3, "reg", "re:x",   "re:ct",  "regere",  "rege",  "regite"},
    {4, "aud", "audi:v", "audi:t", "audi:re", "audi:", "audite"}, // sic
    {5, "cap", "ce:p",   "capt",   "capere",  "cape",  "capite"},
    {6, "",    "fu",     "",       "esse",    "es",    "este"},
    {7, "",    "volu",   "",       "velle",   "",      ""},
    {8, "",    "tul",    "la:t",   "ferre",   "fer",   "ferte"},
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
    {{2, PresentIndicative},           "moneo:   mone:s      monet       mone:mus    mone:tis      monent"},
    {{2, ImperfectIndicative},         "mone:bam mone:ba:s   mone:bat    mone:ba:mus mone:ba:tis   mone:bant"},
    {{2, FutureIndicative},            "mone:bo: mone:bis    mone:bit    mone:bimus  mone:bitis    mone:bunt"},
    {{2, PresentSubjunctive},          "moneam   monea:s     moneat      monea:mus   monea:tis     moneant"},
    {{2, PassivePresentIndicative},    "moneor   mone:ris    mone:tur    mone:mur    mone:mini:    monentur"},
    {{2, PassiveImperfectIndicative},  "mone:bar mone:ba:ris mone:ba:tur mone:ba:mur mone:ba:mini: mone:bantur"},
    {{2, PassiveFutureIndicative},     "mone:bor mone:beris  mone:bitur  mone:bimur  mone:bimini:  mone:buntur"},
    {{2, PassivePresentSubjunctive},   "monear   monea:ris   monea:tur   monea:mur   monea:mini:   moneantur"},
    // rego:, regere, re:xi:, re:ctum (to rule).
    {{3, PresentIndicative},           "rego:    regis       regit       regi:mus    regi:tis      regunt"}, // sic
    {{3, ImperfectIndicative},         "rege:bam rege:ba:s   rege:bat    rege:ba:mus rege:ba:tis   rege:bant"},
    {{3, FutureIndicative},            "regam    rege:s      reget       rege:mus    rege:tis      regent"},
    {{3, PresentSubjunctive},          "regam    rega:s      regat       rega:mus    rega:tis      regant"},
    {{3, PassivePresentIndicative},    "regor    regeris     regitur     regimur     regimini:     reguntur"},
    {{3, PassiveImperfectIndicative},  "rege:bar rege:ba:ris rege:ba:tur rege:ba:mur rege:ba:mini: rege:bantur"},
    {{3, PassiveFutureIndicative},     "regar    rege:ris    rege:tur    rege:mur    rege:mini:    regentur"},
    {{3, PassivePresentSubjunctive},   "regar    rega:ris    rega:tur    rega:mur    rega:mini:    regantur"},
    // audio:, audi:re, audi:vi:, audi:tum (to hear).
    {{4, PresentIndicative},           "audio:    audi:s       audit        audi:mus     audi:tis       audiunt"},
    {{4, ImperfectIndicative},         "audie:bam audie:ba:s   audie:bat    audie:ba:mus audie:bat:is   audie:bant"}, // sic
    {{4, FutureIndicative},            "audiam    audie:s      audiet       audie:mus    audie:tis      audient"},
    {{4, PresentSubjunctive},          "audiam    audia:s      audiat       audia:mus    audia:tis      audiant"},
    {{4, PassivePresentIndicative},    "audior    audi:ris     audi:tur     audi:mur     audi:mini      audiuntur"}, // sic
    {{4, PassiveImperfectIndicative},  "audie:bar audie:ba:ris audie:ba:tur audie:ba:mur audie:ba:mini: audie:bantur"},
    {{4, PassiveFutureIndicative},     "audiar    audie:ris    audie:tur    audie:mur    audie:mini:    audientur"},
    {{4, PassivePresentSubjunctive},   "audiar    audia:ris    audia:tur    audia:mur    audia:mini:    audia:ntur"}, // sic
    // capio:, capere, ce:pi:, captum (to take).
    {{5, PresentIndicative},           "capio:    capis        capit        capimus      capitis        capiunt"},
    {{5, ImperfectIndicative},         "capie:bam capie:ba:s   capie:bat    capie:ba:mus capie:ba:tis   capie:bant"},
    {{5, FutureIndicative},            "capiam    capie:s      capiet       capie:mus    capie:tis      capient"},
    {{5, PresentSubjunctive},          "capiam    capia:s      capiat       capia:mus    capia:tis      capiant"},
    {{5, PassivePresentIndicative},    "capior    caperis      capitur      capimur      capimini:      capiuntur"},
    {{5, PassiveImperfectIndicative},  "capie:bar capie:ba:ris capie:ba:tur capie:ba:mur capie:ba:mini: capie:bantur"},
    {{5, PassiveFutureIndicative},     "capiar    capie:ris    capie:tur    capie:mur    capie:mini:    capientur"},
    {{5, PassivePresentSubjunctive},   "capiar    capia:ris    capia:tur    capia:mur    capia:mini:    capia:ntur"}, // sic
    // sum, esse, fui: (to be). It has no passive, and is part of the other verbs' compound tenses.
    {{6, PresentIndicative},    "sum   es     est   sumus    estis    sunt"},
    {{6, ImperfectIndicative},  "eram  era:s  erat  era:mus  era:tis  erant"},
    {{6, FutureIndicative},     "ero:  eris   erit  erimus   eritis   erunt"},
    {{6, PresentSubjunctive},   "sim   si:s   sit   si:mus   si:tis   sint"},
    {{6, ImperfectSubjunctive}, "essem esse:s esset esse:mus esse:tis essent"},
    // volo:, velle, volui: (to want). It has neither imperative nor passive.
    {{7, PresentIndicative},    "volo:    vi:s      vult     volumus     vultis      volunt"},
    {{7, ImperfectIndicative},  "vole:bam vole:ba:s vole:bat vole:ba:mus vole:ba:tis vole:bant"},
    {{7, FutureIndicative},     "volam    vole:s    volet    vole:mus    vole:tis    volent"},
    {{7, PresentSubjunctive},   "velim    veli:s    velit    veli:mus    veli:tis    velint"},
    // fero:, ferre, tuli:, la:tum (to bear).
    {{8, PresentIndicative},           "fero:    fers       fert       ferimus     fertis       ferunt"},
    {{8, ImperfectIndicative},         "fere:bam fere:ba:s  fere:bat   fere:ba:mus fere:ba:tis  fere:bant"},
    {{8, FutureIndicative},            "feram    fere:s     feret      fere:mus    fere:tis     ferent"},
    {{8, PresentSubjunctive},          "feram    fera:s     ferat      fera:mus    fera:tis     ferant"},
    {{8, PassivePresentIndicative},    "feror    ferris     fertur     ferimur     ferimini:    feruntur"},
    {{8, PassiveImperfectIndicative},  "ferebar  fereba:ris fereba:tur fereba:mur  fereba:mini: ferebantur"}, // sic
    {{8, PassiveFutureIndicative},     "ferar    fere:ris   fere:tur   fere:mur    fere:mini:   ferentur"},
    {{8, PassivePresentSubjunctive},   "ferar    fera:ris   fera:tur   fera:mur    fera:mini:   ferantur"},
};
// clang-format on

std::string formOnPage(int verbClass, int tense, int person)
{
    std::istringstream words(Pages.at({verbClass, tense}));
    return *std::next(std::istream_iterator<std::string>(words), person - 1);
}

// A form as the verb's page has it; where that leaves out the tense, it goes like ama:vi:, ama:re-m, ama:tus
// sum.
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

// A text of the pages as the settings have it shown.
std::string shown(std::string text)
{
    if (settings.VowelMark.empty())
        std::erase(text, ':');
    return text;
}

void buildAll()
{
    buildRegularConjugations();
    buildIrregularVerbs();
    buildThirdAndFourthConjugations();
}

TEST_F(Generators, WriteThePagesOfAGrammarOverTheVerbBeforeWithMarksAndWithout)
{
    for (const Model& verb : Models)
        std::fill_n(verbTables.Forms[verb.verbClass].begin() + 1, verb.supine.empty() ? 66 : 126, "stale");
    for (const platform::Flag marks : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = marks;
        for (const Model& verb : Models)
            if (verb.verbClass <= LastRegularClass)
                storeVerb(verb.verbClass, 1, {verb.present, verb.perfect, verb.supine, {}});
        buildAll();
        for (const Model& verb : Models) {
            for (int tense = PresentIndicative; tense <= BlockCount; ++tense)
                for (int person = FirstSingular; person <= PersonCount; ++person)
                    EXPECT_EQ(verbTables.Forms[verb.verbClass][formNumber(tense, person)],
                              shown(formOf(verb, tense, person)));
            EXPECT_EQ(verbTables.Infinitive[verb.verbClass], shown(verb.infinitive));
        }
    }
}

TEST_F(Generators, ShortenTheImperativeOfThreeStemsOnly)
{
    settings.ShowVowelLength = platform::FlagTrue;
    for (const std::string stem : {"dic", "duc", "du:c", "di:c", "fac", "fer"}) {
        for (const int verbClass : {ThirdConjugation, ThirdIoConjugation})
            storeVerb(verbClass, 1, {stem, "", "", {}});
        buildAll();
        const bool bare = stem == "dic" || stem == "duc" || stem == "du:c";
        EXPECT_EQ(verbTables.Forms[ThirdConjugation][62], bare ? stem : stem + "e");
        EXPECT_EQ(verbTables.Forms[ThirdConjugation][65], stem + "ite");
        EXPECT_EQ(verbTables.Forms[ThirdIoConjugation][62], stem + "e");
    }
}

// Fifteen verbs of each class are told apart by their number, and fewer are counted. The clock stands still:
// seeding anew must still lead to new verbs. An empty list yields its first verb.
TEST_F(Generators, DrawEveryVerbThatTheListCountsWithItsStemsAndTranslations)
{
    settings.CurrentLanguage = "German";
    const std::array<std::int16_t, 6> counts = {0, 15, 7, 1, 4, 0};
    std::ranges::copy(counts, verbList.Count.begin());
    for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass)
        for (int number = 1; number <= MostVerbs; ++number) {
            const std::string n = std::to_string(number);
            storeVerb(verbClass, number, {n + "p", n + "f", n + "s", {n, n + "t", n + "en", n + "ing"}});
            verbList.German[verbClass][number - 1] = n + "extra";
        }
    std::set<std::string> drawn;
    for (int run = 0; run < 400; ++run) {
        buildAll();
        for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass) {
            const std::string n = verbTables.BaseGloss[verbClass];
            const std::string extra = verbClass == FourthConjugation && n == "4" ? "gräbe" : n + "extra";
            const auto& forms = verbTables.Forms[verbClass];
            EXPECT_EQ(forms[21] + forms[88] + verbTables.Infinitive[verbClass].substr(0, n.size() + 1) +
                          verbTables.PastGloss[verbClass] + verbTables.ParticipleGloss[verbClass] +
                          verbTables.PresentParticipleGloss[verbClass],
                      n + "fit" + n + "si sumus" + n + "p" + n + "t" + n + "en" + n + "ing");
            EXPECT_EQ(verbTables.GermanGloss[verbClass - 1], verbClass == 1 ? "" : extra);
            drawn.insert(std::to_string(verbClass) + ":" + n);
        }
    }
    EXPECT_EQ(drawn.size(), 15U + 7 + 1 + 4 + 1);
    for (const char* const last : {"1:15", "2:7", "3:1", "4:4", "5:1"})
        EXPECT_TRUE(drawn.contains(last)) << last;
}

TEST_F(Generators, TranslateTheIrregularVerbsByLanguage)
{
    // The four translations of ferre, and the German one; "-": the slot keeps what it held.
    const std::string english = "bear bore borne bearing -";
    for (const auto& [language, glosses] : {std::pair{"English", english},
                                            {"French", english},
                                            {"Italian", english},
                                            {"Spanish", english},
                                            {"German", "trag trug getragen trüge träg"},
                                            {"Latin", "- - - - -"}}) {
        settings.CurrentLanguage = language;
        auto& tables = verbTables;
        for (auto* const slot : {&tables.BaseGloss, &tables.PastGloss, &tables.ParticipleGloss,
                                 &tables.PresentParticipleGloss, &tables.GermanGloss})
            slot->fill("-");
        buildIrregularVerbs();
        EXPECT_EQ(tables.BaseGloss[Ferre] + " " + tables.PastGloss[Ferre] + " " +
                      tables.ParticipleGloss[Ferre] + " " + tables.PresentParticipleGloss[Ferre] + " " +
                      tables.GermanGloss[Ferre - 1],
                  glosses);
        EXPECT_EQ(tables.PresentParticipleGloss[Esse], glosses == english ? "being" : "-");
        EXPECT_EQ(tables.GermanGloss[Velle - 1], "-");
    }
}

} // namespace
