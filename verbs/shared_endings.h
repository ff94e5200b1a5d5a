#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

/// Endings that several classes share. The persons are, from left to right: first to third singular, first to
/// third plural.

// The tenses of the perfect stem, alike for every verb: ama:v-, fu-.
inline constexpr std::array<EndingRow, 5> PerfectSystem = {{
    {PerfectIndicative,              Stem::Perfect, {"i:",    "isti:",  "it",    "imus",     "istis",    "e:runt"}},
    {PluperfectIndicative,           Stem::Perfect, {"eram",  "era:s",  "erat",  "era:mus",  "era:tis",  "erant"}},
    {FuturePerfectIndicative,        Stem::Perfect, {"ero:",  "eris",   "erit",  "erimus",   "eritis",   "erint"}},
    {PerfectSubjunctive,             Stem::Perfect, {"erim",  "eri:s",  "erit",  "eri:mus",  "eri:tis",  "erint"}},
    {PluperfectSubjunctive,          Stem::Perfect, {"issem", "isse:s", "isset", "isse:mus", "isse:tis", "issent"}},
}};

// The compound tenses of the passive with the masculine alone: re:ctus sum, re:cti: sumus.
inline constexpr std::array<EndingRow, 5> MasculineCompounds = {{
    {PassivePerfectIndicative,       Stem::Supine,  {"us sum",   "us es",     "us est",   "i: sumus",    "i: estis",    "i: sunt"}},
    {PassivePluperfectIndicative,    Stem::Supine,  {"us eram",  "us era:s",  "us erat",  "i: era:mus",  "i: era:tis",  "i: erant"}},
    {PassiveFuturePerfectIndicative, Stem::Supine,  {"us ero:",  "us eris",   "us erit",  "i: erimus",   "i: eritis",   "i: erunt"}},
    {PassivePerfectSubjunctive,      Stem::Supine,  {"us sim",   "us si:s",   "us sit",   "i: si:mus",   "i: si:tis",   "i: sint"}},
    {PassivePluperfectSubjunctive,   Stem::Supine,  {"us essem", "us esse:s", "us esset", "i: esse:mus", "i: esse:tis", "i: essent"}},
}};

// clang-format on

} // namespace verbs
