#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

/// The present systems of the three irregular verbs, in whole forms.

// esse: sum, esse, fui:. Joined by `PerfectSystem` with fu-. It has no passive.
inline constexpr std::array<EndingRow, 6> EsseForms = {{
    {PresentIndicative,              Stem::None,    {"sum",   "es",     "est",   "sumus",    "estis",    "sunt"}},
    {ImperfectIndicative,            Stem::None,    {"eram",  "era:s",  "erat",  "era:mus",  "era:tis",  "erant"}},
    {FutureIndicative,               Stem::None,    {"ero:",  "eris",   "erit",  "erimus",   "eritis",   "erunt"}},
    {PresentSubjunctive,             Stem::None,    {"sim",   "si:s",   "sit",   "si:mus",   "si:tis",   "sint"}},
    {ImperfectSubjunctive,           Stem::None,    {"essem", "esse:s", "esset", "esse:mus", "esse:tis", "essent"}},
    {Imperative,                     Stem::None,    {"",      "es",     "",      "",         "este",     ""}},
}};

// velle: volo:, velle, volui:. Joined by `PerfectSystem` with volu-. It has neither imperative nor passive.
inline constexpr std::array<EndingRow, 6> VelleForms = {{
    {PresentIndicative,              Stem::None,    {"volo:",    "vi:s",      "vult",     "volumus",     "vultis",      "volunt"}},
    {ImperfectIndicative,            Stem::None,    {"vole:bam", "vole:ba:s", "vole:bat", "vole:ba:mus", "vole:ba:tis", "vole:bant"}},
    {FutureIndicative,               Stem::None,    {"volam",    "vole:s",    "volet",    "vole:mus",    "vole:tis",    "volent"}},
    {PresentSubjunctive,             Stem::None,    {"velim",    "veli:s",    "velit",    "veli:mus",    "veli:tis",    "velint"}},
    {ImperfectSubjunctive,           Stem::None,    {"vellem",   "velle:s",   "vellet",   "velle:mus",   "velle:tis",   "vellent"}},
    {Imperative,                     Stem::None,    {"",         "",          "",         "",            "",            ""}},
}};

// ferre: fero:, ferre, tuli:, la:tum. Joined by `PerfectSystem` with tul- and `MasculineCompounds` with la:t-.
inline constexpr std::array<EndingRow, 11> FerreForms = {{
    {PresentIndicative,              Stem::None,    {"fero:",    "fers",       "fert",       "ferimus",     "fertis",       "ferunt"}},
    {ImperfectIndicative,            Stem::None,    {"fere:bam", "fere:ba:s",  "fere:bat",   "fere:ba:mus", "fere:ba:tis",  "fere:bant"}},
    {FutureIndicative,               Stem::None,    {"feram",    "fere:s",     "feret",      "fere:mus",    "fere:tis",     "ferent"}},
    {PresentSubjunctive,             Stem::None,    {"feram",    "fera:s",     "ferat",      "fera:mus",    "fera:tis",     "ferant"}},
    {ImperfectSubjunctive,           Stem::None,    {"ferrem",   "ferre:s",    "ferret",     "ferre:mus",   "ferre:tis",    "ferrent"}},
    {Imperative,                     Stem::None,    {"",         "fer",        "",           "",            "ferte",        ""}},
    {PassivePresentIndicative,       Stem::None,    {"feror",    "ferris",     "fertur",     "ferimur",     "ferimini:",    "feruntur"}},
    {PassiveImperfectIndicative,     Stem::None,    {"ferebar",  "fereba:ris", "fereba:tur", "fereba:mur",  "fereba:mini:", "ferebantur"}}, // sic: but fere:bam
    {PassiveFutureIndicative,        Stem::None,    {"ferar",    "fere:ris",   "fere:tur",   "fere:mur",    "fere:mini:",   "ferentur"}},
    {PassivePresentSubjunctive,      Stem::None,    {"ferar",    "fera:ris",   "fera:tur",   "fera:mur",    "fera:mini:",   "ferantur"}},
    {PassiveImperfectSubjunctive,    Stem::None,    {"ferrer",   "ferre:ris",  "ferre:tur",  "ferre:mur",   "ferre:mini:",  "ferrentur"}},
}};

// clang-format on

} // namespace verbs
