#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

// First conjugation: amo:, ama:re, ama:vi:, ama:tum. Present stem am-, supine stem ama:t-.
// The singular of the compound tenses names all three genders at once, the plural the masculine alone.
// Joined by `PerfectSystem`.
inline constexpr std::array<EndingRow, 16> FirstConjugationEndings = {{
    {PresentIndicative,              Stem::Present, {"o:",              "a:s",              "at",              "a:mus",       "a:tis",       "ant"}},
    {ImperfectIndicative,            Stem::Present, {"a:bam",           "a:ba:s",           "a:bat",           "a:ba:mus",    "a:ba:tis",    "a:bant"}},
    {FutureIndicative,               Stem::Present, {"a:bo:",           "a:bis",            "a:bit",           "a:bimus",     "a:bitis",     "a:bunt"}},
    {PresentSubjunctive,             Stem::Present, {"em",              "e:s",              "et",              "e:mus",       "e:tis",       "ent"}},
    {ImperfectSubjunctive,           Stem::Present, {"a:rem",           "a:re:s",           "a:ret",           "a:re:mus",    "a:re:tis",    "a:rent"}},
    {Imperative,                     Stem::Present, {"",                "a:",               "",                "",            "a:te",        ""}},
    {PassivePresentIndicative,       Stem::Present, {"or",              "a:ris",            "a:tur",           "a:mur",       "a:mini:",     "a:ntur"}}, // sic
    {PassiveImperfectIndicative,     Stem::Present, {"a:bar",           "a:ba:ris",         "a:ba:tur",        "a:ba:mur",    "a:ba:mini:",  "a:bantur"}},
    {PassiveFutureIndicative,        Stem::Present, {"a:bor",           "a:beris",          "a:bitur",         "a:bimur",     "a:bimini:",   "a:buntur"}},
    {PassivePerfectIndicative,       Stem::Supine,  {"us -a -um sum",   "us -a -um es",     "us -a -um est",   "i: sumus",    "i: estis",    "i: sunt"}},
    {PassivePluperfectIndicative,    Stem::Supine,  {"us -a -um eram",  "us -a -um era:s",  "us -a -um erat",  "i: era:mus",  "i: era:tis",  "i: erant"}},
    {PassiveFuturePerfectIndicative, Stem::Supine,  {"us -a -um ero:",  "us -a -um eris",   "us -a -um erit",  "i: erimus",   "i: eritis",   "i: erunt"}},
    {PassivePresentSubjunctive,      Stem::Present, {"er",              "e:ris",            "e:tur",           "e:mur",       "e:mini:",     "e:ntur"}}, // sic
    {PassiveImperfectSubjunctive,    Stem::Present, {"a:rer",           "a:re:ris",         "a:re:tur",        "a:re:mur",    "a:re:mini:",  "a:rentur"}},
    {PassivePerfectSubjunctive,      Stem::Supine,  {"us -a -um sim",   "us -a -um si:s",   "us -a -um sit",   "i: si:mus",   "i: si:tis",   "i: sint"}},
    {PassivePluperfectSubjunctive,   Stem::Supine,  {"us -a -um essem", "us -a -um esse:s", "us -a -um esset", "i: esse:mus", "i: esse:tis", "i: essent"}},
}};

// clang-format on

} // namespace verbs
