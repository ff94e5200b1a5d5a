#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

// Third conjugation, verbs in -io: capio:, capere, ce:pi:, captum. Present stem cap-.
// Joined by `PerfectSystem` and `MasculineCompounds`.
inline constexpr std::array<EndingRow, 11> ThirdIoConjugationEndings = {{
    {PresentIndicative,              Stem::Present, {"io:",    "is",        "it",        "imus",      "itis",        "iunt"}},
    {ImperfectIndicative,            Stem::Present, {"ie:bam", "ie:ba:s",   "ie:bat",    "ie:ba:mus", "ie:ba:tis",   "ie:bant"}},
    {FutureIndicative,               Stem::Present, {"iam",    "ie:s",      "iet",       "ie:mus",    "ie:tis",      "ient"}},
    {PresentSubjunctive,             Stem::Present, {"iam",    "ia:s",      "iat",       "ia:mus",    "ia:tis",      "iant"}},
    {ImperfectSubjunctive,           Stem::Present, {"erem",   "ere:s",     "eret",      "ere:mus",   "ere:tis",     "erent"}},
    {Imperative,                     Stem::Present, {"",       "e",         "",          "",          "ite",         ""}},
    {PassivePresentIndicative,       Stem::Present, {"ior",    "eris",      "itur",      "imur",      "imini:",      "iuntur"}},
    {PassiveImperfectIndicative,     Stem::Present, {"ie:bar", "ie:ba:ris", "ie:ba:tur", "ie:ba:mur", "ie:ba:mini:", "ie:bantur"}},
    {PassiveFutureIndicative,        Stem::Present, {"iar",    "ie:ris",    "ie:tur",    "ie:mur",    "ie:mini:",    "ientur"}},
    {PassivePresentSubjunctive,      Stem::Present, {"iar",    "ia:ris",    "ia:tur",    "ia:mur",    "ia:mini:",    "ia:ntur"}}, // sic
    {PassiveImperfectSubjunctive,    Stem::Present, {"erer",   "ere:ris",   "ere:tur",   "ere:mur",   "ere:mini:",   "erentur"}},
}};

// clang-format on

} // namespace verbs
