#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

// Third conjugation: rego:, regere, re:xi:, re:ctum. Present stem reg-.
// Joined by `PerfectSystem` and `MasculineCompounds`.
inline constexpr std::array<EndingRow, 11> ThirdConjugationEndings = {{
    {PresentIndicative,              Stem::Present, {"o:",    "is",       "it",       "i:mus",    "i:tis",      "unt"}}, // sic: a mark on the short i
    {ImperfectIndicative,            Stem::Present, {"e:bam", "e:ba:s",   "e:bat",    "e:ba:mus", "e:ba:tis",   "e:bant"}},
    {FutureIndicative,               Stem::Present, {"am",    "e:s",      "et",       "e:mus",    "e:tis",      "ent"}},
    {PresentSubjunctive,             Stem::Present, {"am",    "a:s",      "at",       "a:mus",    "a:tis",      "ant"}},
    {ImperfectSubjunctive,           Stem::Present, {"erem",  "ere:s",    "eret",     "ere:mus",  "ere:tis",    "erent"}},
    {Imperative,                     Stem::Present, {"",      "e",        "",         "",         "ite",        ""}},
    {PassivePresentIndicative,       Stem::Present, {"or",    "eris",     "itur",     "imur",     "imini:",     "untur"}},
    {PassiveImperfectIndicative,     Stem::Present, {"e:bar", "e:ba:ris", "e:ba:tur", "e:ba:mur", "e:ba:mini:", "e:bantur"}},
    {PassiveFutureIndicative,        Stem::Present, {"ar",    "e:ris",    "e:tur",    "e:mur",    "e:mini:",    "entur"}},
    {PassivePresentSubjunctive,      Stem::Present, {"ar",    "a:ris",    "a:tur",    "a:mur",    "a:mini:",    "antur"}},
    {PassiveImperfectSubjunctive,    Stem::Present, {"erer",  "ere:ris",  "ere:tur",  "ere:mur",  "ere:mini:",  "erentur"}},
}};

// The singular of the imperative is the bare stem of these; all others, di:c with its mark among them, take an e.
inline constexpr std::array<std::string_view, 3> StemsWithBareImperative = {"dic", "duc", "du:c"};

// clang-format on

} // namespace verbs
