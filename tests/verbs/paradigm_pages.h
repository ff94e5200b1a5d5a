#pragma once

#include "verbs/paradigm.h"

#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tests {

using namespace verbs;

struct Model {
    int verbClass;
    std::string present, perfect, supine, infinitive, imperfect, imperative, imperativePlural;
};

// clang-format off
inline const std::vector<Model> Models = {
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
inline const std::map<std::pair<int, int>, std::string> Pages = {
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

inline std::string formOnPage(int verbClass, int tense, int person)
{
    std::istringstream words(Pages.at({verbClass, tense}));
    return *std::next(std::istream_iterator<std::string>(words), person - 1);
}

// A form as the verb's page has it; where that leaves out the tense, it goes like ama:-bam (the future of
// moneo:, too, like ama:-bo:), ama:re-m, ama:v-i:, ama:t-us sum.
inline std::string formOf(const Model& verb, int tense, int person)
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

} // namespace tests
