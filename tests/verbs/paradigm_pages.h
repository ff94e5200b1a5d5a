#pragma once

#include <array>
#include <string_view>

namespace tests {

/// One line of a grammar's page: a tense, and its forms from the first singular to the third plural, with a
/// colon after each long vowel. An empty form: there is none.
///
/// As a grammar does, only amo has its perfect system in full, and the verbs after rego: leave out the
/// compound tenses, where they go like re:ctus sum.
struct PageLine {
    int verbClass;
    std::string_view tense;
    std::array<std::string_view, 6> forms;
};

// clang-format off
inline constexpr std::array<PageLine, 97> Pages = {{
    // amo:, ama:re, ama:vi:, ama:tum (to love).
    // The compound singulars name the three genders, the plurals the masculine alone.
    {1, "present indicative",             {"amo:",                 "ama:s",                 "amat",                 "ama:mus",          "ama:tis",          "amant"}},
    {1, "imperfect indicative",           {"ama:bam",              "ama:ba:s",              "ama:bat",              "ama:ba:mus",       "ama:ba:tis",       "ama:bant"}},
    {1, "future indicative",              {"ama:bo:",              "ama:bis",               "ama:bit",              "ama:bimus",        "ama:bitis",        "ama:bunt"}},
    {1, "perfect indicative",             {"ama:vi:",              "ama:visti:",            "ama:vit",              "ama:vimus",        "ama:vistis",       "ama:ve:runt"}},
    {1, "pluperfect indicative",          {"ama:veram",            "ama:vera:s",            "ama:verat",            "ama:vera:mus",     "ama:vera:tis",     "ama:verant"}},
    {1, "future perfect",                 {"ama:vero:",            "ama:veris",             "ama:verit",            "ama:verimus",      "ama:veritis",      "ama:verint"}},
    {1, "present subjunctive",            {"amem",                 "ame:s",                 "amet",                 "ame:mus",          "ame:tis",          "ament"}},
    {1, "imperfect subjunctive",          {"ama:rem",              "ama:re:s",              "ama:ret",              "ama:re:mus",       "ama:re:tis",       "ama:rent"}},
    {1, "perfect subjunctive",            {"ama:verim",            "ama:veri:s",            "ama:verit",            "ama:veri:mus",     "ama:veri:tis",     "ama:verint"}},
    {1, "pluperfect subjunctive",         {"ama:vissem",           "ama:visse:s",           "ama:visset",           "ama:visse:mus",    "ama:visse:tis",    "ama:vissent"}},
    {1, "imperative",                     {"",                     "ama:",                  "",                     "",                 "ama:te",           ""}},
    {1, "passive present",                {"amor",                 "ama:ris",               "ama:tur",              "ama:mur",          "ama:mini:",        "ama:ntur"}},       // sic
    {1, "passive imperfect",              {"ama:bar",              "ama:ba:ris",            "ama:ba:tur",           "ama:ba:mur",       "ama:ba:mini:",     "ama:bantur"}},
    {1, "passive future",                 {"ama:bor",              "ama:beris",             "ama:bitur",            "ama:bimur",        "ama:bimini:",      "ama:buntur"}},
    {1, "passive perfect",                {"ama:tus -a -um sum",   "ama:tus -a -um es",     "ama:tus -a -um est",   "ama:ti: sumus",    "ama:ti: estis",    "ama:ti: sunt"}},
    {1, "passive pluperfect",             {"ama:tus -a -um eram",  "ama:tus -a -um era:s",  "ama:tus -a -um erat",  "ama:ti: era:mus",  "ama:ti: era:tis",  "ama:ti: erant"}},
    {1, "passive future perfect",         {"ama:tus -a -um ero:",  "ama:tus -a -um eris",   "ama:tus -a -um erit",  "ama:ti: erimus",   "ama:ti: eritis",   "ama:ti: erunt"}},
    {1, "passive present subjunctive",    {"amer",                 "ame:ris",               "ame:tur",              "ame:mur",          "ame:mini:",        "ame:ntur"}},       // sic
    {1, "passive imperfect subjunctive",  {"ama:rer",              "ama:re:ris",            "ama:re:tur",           "ama:re:mur",       "ama:re:mini:",     "ama:rentur"}},
    {1, "passive perfect subjunctive",    {"ama:tus -a -um sim",   "ama:tus -a -um si:s",   "ama:tus -a -um sit",   "ama:ti: si:mus",   "ama:ti: si:tis",   "ama:ti: sint"}},
    {1, "passive pluperfect subjunctive", {"ama:tus -a -um essem", "ama:tus -a -um esse:s", "ama:tus -a -um esset", "ama:ti: esse:mus", "ama:ti: esse:tis", "ama:ti: essent"}},

    // moneo:, mone:re, monui:, monitum (to warn).
    {2, "present indicative",             {"moneo:",              "mone:s",            "monet",              "mone:mus",         "mone:tis",         "monent"}},
    {2, "imperfect indicative",           {"mone:bam",            "mone:ba:s",         "mone:bat",           "mone:ba:mus",      "mone:ba:tis",      "mone:bant"}},
    {2, "future indicative",              {"mone:bo:",            "mone:bis",          "mone:bit",           "mone:bimus",       "mone:bitis",       "mone:bunt"}},
    {2, "present subjunctive",            {"moneam",              "monea:s",           "moneat",             "monea:mus",        "monea:tis",        "moneant"}},
    {2, "imperfect subjunctive",          {"mone:rem",            "mone:re:s",         "mone:ret",           "mone:re:mus",      "mone:re:tis",      "mone:rent"}},
    {2, "imperative",                     {"",                    "mone:",             "",                   "",                 "mone:te",          ""}},
    {2, "passive present",                {"moneor",              "mone:ris",          "mone:tur",           "mone:mur",         "mone:mini:",       "monentur"}},
    {2, "passive imperfect",              {"mone:bar",            "mone:ba:ris",       "mone:ba:tur",        "mone:ba:mur",      "mone:ba:mini:",    "mone:bantur"}},
    {2, "passive future",                 {"mone:bor",            "mone:beris",        "mone:bitur",         "mone:bimur",       "mone:bimini:",     "mone:buntur"}},
    {2, "passive perfect",                {"monitus -a -um sum",  "monitus -a -um es", "monitus -a -um est", "moniti: sumus",    "moniti: estis",    "moniti: sunt"}},
    {2, "passive pluperfect",             {"monitus -a -um eram", "monitus era:s",     "monitus erat",       "moniti: era:mus",  "moniti: era:tis",  "moniti: erant"}},  // sic: genders in the first alone
    {2, "passive future perfect",         {"monitus ero:",        "monitus eris",      "monitus erit",       "moniti: erimus",   "moniti: eritis",   "moniti: erunt"}},  // sic: no genders from here on
    {2, "passive present subjunctive",    {"monear",              "monea:ris",         "monea:tur",          "monea:mur",        "monea:mini:",      "moneantur"}},
    {2, "passive imperfect subjunctive",  {"mone:rer",            "mone:re:ris",       "mone:re:tur",        "mone:re:mur",      "mone:re:mini:",    "mone:rentur"}},
    {2, "passive perfect subjunctive",    {"monitus sim",         "monitus si:s",      "monitus sit",        "moniti: si:mus",   "moniti: si:tis",   "moniti: sint"}},
    {2, "passive pluperfect subjunctive", {"monitus essem",       "monitus esse:s",    "monitus esset",      "moniti: esse:mus", "moniti: esse:tis", "moniti: essent"}},

    // rego:, regere, re:xi:, re:ctum (to rule).
    {3, "present indicative",             {"rego:",         "regis",          "regit",         "regi:mus",         "regi:tis",         "regunt"}},         // sic
    {3, "imperfect indicative",           {"rege:bam",      "rege:ba:s",      "rege:bat",      "rege:ba:mus",      "rege:ba:tis",      "rege:bant"}},
    {3, "future indicative",              {"regam",         "rege:s",         "reget",         "rege:mus",         "rege:tis",         "regent"}},
    {3, "present subjunctive",            {"regam",         "rega:s",         "regat",         "rega:mus",         "rega:tis",         "regant"}},
    {3, "imperfect subjunctive",          {"regerem",       "regere:s",       "regeret",       "regere:mus",       "regere:tis",       "regerent"}},
    {3, "imperative",                     {"",              "rege",           "",              "",                 "regite",           ""}},
    {3, "passive present",                {"regor",         "regeris",        "regitur",       "regimur",          "regimini:",        "reguntur"}},
    {3, "passive imperfect",              {"rege:bar",      "rege:ba:ris",    "rege:ba:tur",   "rege:ba:mur",      "rege:ba:mini:",    "rege:bantur"}},
    {3, "passive future",                 {"regar",         "rege:ris",       "rege:tur",      "rege:mur",         "rege:mini:",       "regentur"}},
    {3, "passive perfect",                {"re:ctus sum",   "re:ctus es",     "re:ctus est",   "re:cti: sumus",    "re:cti: estis",    "re:cti: sunt"}},
    {3, "passive pluperfect",             {"re:ctus eram",  "re:ctus era:s",  "re:ctus erat",  "re:cti: era:mus",  "re:cti: era:tis",  "re:cti: erant"}},
    {3, "passive future perfect",         {"re:ctus ero:",  "re:ctus eris",   "re:ctus erit",  "re:cti: erimus",   "re:cti: eritis",   "re:cti: erunt"}},
    {3, "passive present subjunctive",    {"regar",         "rega:ris",       "rega:tur",      "rega:mur",         "rega:mini:",       "regantur"}},
    {3, "passive imperfect subjunctive",  {"regerer",       "regere:ris",     "regere:tur",    "regere:mur",       "regere:mini:",     "regerentur"}},
    {3, "passive perfect subjunctive",    {"re:ctus sim",   "re:ctus si:s",   "re:ctus sit",   "re:cti: si:mus",   "re:cti: si:tis",   "re:cti: sint"}},
    {3, "passive pluperfect subjunctive", {"re:ctus essem", "re:ctus esse:s", "re:ctus esset", "re:cti: esse:mus", "re:cti: esse:tis", "re:cti: essent"}},

    // audio:, audi:re, audi:vi:, audi:tum (to hear).
    {4, "present indicative",            {"audio:",    "audi:s",       "audit",        "audi:mus",     "audi:tis",       "audiunt"}},
    {4, "imperfect indicative",          {"audie:bam", "audie:ba:s",   "audie:bat",    "audie:ba:mus", "audie:bat:is",   "audie:bant"}},   // sic
    {4, "future indicative",             {"audiam",    "audie:s",      "audiet",       "audie:mus",    "audie:tis",      "audient"}},
    {4, "present subjunctive",           {"audiam",    "audia:s",      "audiat",       "audia:mus",    "audia:tis",      "audiant"}},
    {4, "imperfect subjunctive",         {"audi:rem",  "audi:re:s",    "audi:ret",     "audi:re:mus",  "audi:re:tis",    "audi:rent"}},
    {4, "imperative",                    {"",          "audi:",        "",             "",             "audite",         ""}},             // sic
    {4, "passive present",               {"audior",    "audi:ris",     "audi:tur",     "audi:mur",     "audi:mini",      "audiuntur"}},    // sic
    {4, "passive imperfect",             {"audie:bar", "audie:ba:ris", "audie:ba:tur", "audie:ba:mur", "audie:ba:mini:", "audie:bantur"}},
    {4, "passive future",                {"audiar",    "audie:ris",    "audie:tur",    "audie:mur",    "audie:mini:",    "audientur"}},
    {4, "passive present subjunctive",   {"audiar",    "audia:ris",    "audia:tur",    "audia:mur",    "audia:mini:",    "audia:ntur"}},   // sic
    {4, "passive imperfect subjunctive", {"audi:rer",  "audi:re:ris",  "audi:re:tur",  "audi:re:mur",  "audi:re:mini:",  "audi:rentur"}},

    // capio:, capere, ce:pi:, captum (to take).
    {5, "present indicative",            {"capio:",    "capis",        "capit",        "capimus",      "capitis",        "capiunt"}},
    {5, "imperfect indicative",          {"capie:bam", "capie:ba:s",   "capie:bat",    "capie:ba:mus", "capie:ba:tis",   "capie:bant"}},
    {5, "future indicative",             {"capiam",    "capie:s",      "capiet",       "capie:mus",    "capie:tis",      "capient"}},
    {5, "present subjunctive",           {"capiam",    "capia:s",      "capiat",       "capia:mus",    "capia:tis",      "capiant"}},
    {5, "imperfect subjunctive",         {"caperem",   "capere:s",     "caperet",      "capere:mus",   "capere:tis",     "caperent"}},
    {5, "imperative",                    {"",          "cape",         "",             "",             "capite",         ""}},
    {5, "passive present",               {"capior",    "caperis",      "capitur",      "capimur",      "capimini:",      "capiuntur"}},
    {5, "passive imperfect",             {"capie:bar", "capie:ba:ris", "capie:ba:tur", "capie:ba:mur", "capie:ba:mini:", "capie:bantur"}},
    {5, "passive future",                {"capiar",    "capie:ris",    "capie:tur",    "capie:mur",    "capie:mini:",    "capientur"}},
    {5, "passive present subjunctive",   {"capiar",    "capia:ris",    "capia:tur",    "capia:mur",    "capia:mini:",    "capia:ntur"}},   // sic
    {5, "passive imperfect subjunctive", {"caperer",   "capere:ris",   "capere:tur",   "capere:mur",   "capere:mini:",   "caperentur"}},

    // sum, esse, fui: (to be). It has no passive.
    {6, "present indicative",    {"sum",   "es",     "est",   "sumus",    "estis",    "sunt"}},
    {6, "imperfect indicative",  {"eram",  "era:s",  "erat",  "era:mus",  "era:tis",  "erant"}},
    {6, "future indicative",     {"ero:",  "eris",   "erit",  "erimus",   "eritis",   "erunt"}},
    {6, "present subjunctive",   {"sim",   "si:s",   "sit",   "si:mus",   "si:tis",   "sint"}},
    {6, "imperfect subjunctive", {"essem", "esse:s", "esset", "esse:mus", "esse:tis", "essent"}},
    {6, "imperative",            {"",      "es",     "",      "",         "este",     ""}},

    // volo:, velle, volui: (to want). It has neither imperative nor passive.
    {7, "present indicative",    {"volo:",    "vi:s",      "vult",     "volumus",     "vultis",      "volunt"}},
    {7, "imperfect indicative",  {"vole:bam", "vole:ba:s", "vole:bat", "vole:ba:mus", "vole:ba:tis", "vole:bant"}},
    {7, "future indicative",     {"volam",    "vole:s",    "volet",    "vole:mus",    "vole:tis",    "volent"}},
    {7, "present subjunctive",   {"velim",    "veli:s",    "velit",    "veli:mus",    "veli:tis",    "velint"}},
    {7, "imperfect subjunctive", {"vellem",   "velle:s",   "vellet",   "velle:mus",   "velle:tis",   "vellent"}},

    // fero:, ferre, tuli:, la:tum (to bear).
    {8, "present indicative",            {"fero:",    "fers",       "fert",       "ferimus",     "fertis",       "ferunt"}},
    {8, "imperfect indicative",          {"fere:bam", "fere:ba:s",  "fere:bat",   "fere:ba:mus", "fere:ba:tis",  "fere:bant"}},
    {8, "future indicative",             {"feram",    "fere:s",     "feret",      "fere:mus",    "fere:tis",     "ferent"}},
    {8, "present subjunctive",           {"feram",    "fera:s",     "ferat",      "fera:mus",    "fera:tis",     "ferant"}},
    {8, "imperfect subjunctive",         {"ferrem",   "ferre:s",    "ferret",     "ferre:mus",   "ferre:tis",    "ferrent"}},
    {8, "imperative",                    {"",         "fer",        "",           "",            "ferte",        ""}},
    {8, "passive present",               {"feror",    "ferris",     "fertur",     "ferimur",     "ferimini:",    "feruntur"}},
    {8, "passive imperfect",             {"ferebar",  "fereba:ris", "fereba:tur", "fereba:mur",  "fereba:mini:", "ferebantur"}}, // sic
    {8, "passive future",                {"ferar",    "fere:ris",   "fere:tur",   "fere:mur",    "fere:mini:",   "ferentur"}},
    {8, "passive present subjunctive",   {"ferar",    "fera:ris",   "fera:tur",   "fera:mur",    "fera:mini:",   "ferantur"}},
    {8, "passive imperfect subjunctive", {"ferrer",   "ferre:ris",  "ferre:tur",  "ferre:mur",   "ferre:mini:",  "ferrentur"}},
}};
// clang-format on

} // namespace tests
