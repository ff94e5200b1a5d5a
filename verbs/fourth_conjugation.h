#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

// Fourth conjugation: audio:, audi:re, audi:vi:, audi:tum. Present stem aud-.
// Joined by `PerfectSystem` and `MasculineCompounds`.
inline constexpr std::array<EndingRow, 11> FourthConjugationEndings = {{
    {PresentIndicative,              Stem::Present, {"io:",    "i:s",       "it",        "i:mus",     "i:tis",       "iunt"}},
    {ImperfectIndicative,            Stem::Present, {"ie:bam", "ie:ba:s",   "ie:bat",    "ie:ba:mus", "ie:bat:is",   "ie:bant"}}, // sic: ie:bat:is
    {FutureIndicative,               Stem::Present, {"iam",    "ie:s",      "iet",       "ie:mus",    "ie:tis",      "ient"}},
    {PresentSubjunctive,             Stem::Present, {"iam",    "ia:s",      "iat",       "ia:mus",    "ia:tis",      "iant"}},
    {ImperfectSubjunctive,           Stem::Present, {"i:rem",  "i:re:s",    "i:ret",     "i:re:mus",  "i:re:tis",    "i:rent"}},
    {Imperative,                     Stem::Present, {"",       "i:",        "",          "",          "ite",         ""}},        // sic: ite
    {PassivePresentIndicative,       Stem::Present, {"ior",    "i:ris",     "i:tur",     "i:mur",     "i:mini",      "iuntur"}},  // sic: i:mini
    {PassiveImperfectIndicative,     Stem::Present, {"ie:bar", "ie:ba:ris", "ie:ba:tur", "ie:ba:mur", "ie:ba:mini:", "ie:bantur"}},
    {PassiveFutureIndicative,        Stem::Present, {"iar",    "ie:ris",    "ie:tur",    "ie:mur",    "ie:mini:",    "ientur"}},
    {PassivePresentSubjunctive,      Stem::Present, {"iar",    "ia:ris",    "ia:tur",    "ia:mur",    "ia:mini:",    "ia:ntur"}}, // sic
    {PassiveImperfectSubjunctive,    Stem::Present, {"i:rer",  "i:re:ris",  "i:re:tur",  "i:re:mur",  "i:re:mini:",  "i:rentur"}},
}};

// clang-format on

} // namespace verbs
