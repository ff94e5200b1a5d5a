#pragma once

#include "verbs/ending_rows.h"

#include <array>

namespace verbs {

// clang-format off

// Second conjugation: moneo:, mone:re, monui:, monitum. Present stem mon-, supine stem monit-.
// The perfect singular and the first person of the pluperfect name all three genders, the rest the masculine alone.
// Joined by `PerfectSystem`.
inline constexpr std::array<EndingRow, 16> SecondConjugationEndings = {{
    {PresentIndicative,              Stem::Present, {"eo:",            "e:s",          "et",            "e:mus",       "e:tis",       "ent"}},
    {ImperfectIndicative,            Stem::Present, {"e:bam",          "e:ba:s",       "e:bat",         "e:ba:mus",    "e:ba:tis",    "e:bant"}},
    {FutureIndicative,               Stem::Present, {"e:bo:",          "e:bis",        "e:bit",         "e:bimus",     "e:bitis",     "e:bunt"}},
    {PresentSubjunctive,             Stem::Present, {"eam",            "ea:s",         "eat",           "ea:mus",      "ea:tis",      "eant"}},
    {ImperfectSubjunctive,           Stem::Present, {"e:rem",          "e:re:s",       "e:ret",         "e:re:mus",    "e:re:tis",    "e:rent"}},
    {Imperative,                     Stem::Present, {"",               "e:",           "",              "",            "e:te",        ""}},
    {PassivePresentIndicative,       Stem::Present, {"eor",            "e:ris",        "e:tur",         "e:mur",       "e:mini:",     "entur"}},
    {PassiveImperfectIndicative,     Stem::Present, {"e:bar",          "e:ba:ris",     "e:ba:tur",      "e:ba:mur",    "e:ba:mini:",  "e:bantur"}},
    {PassiveFutureIndicative,        Stem::Present, {"e:bor",          "e:beris",      "e:bitur",       "e:bimur",     "e:bimini:",   "e:buntur"}},
    {PassivePerfectIndicative,       Stem::Supine,  {"us -a -um sum",  "us -a -um es", "us -a -um est", "i: sumus",    "i: estis",    "i: sunt"}},
    {PassivePluperfectIndicative,    Stem::Supine,  {"us -a -um eram", "us era:s",     "us erat",       "i: era:mus",  "i: era:tis",  "i: erant"}},
    {PassiveFuturePerfectIndicative, Stem::Supine,  {"us ero:",        "us eris",      "us erit",       "i: erimus",   "i: eritis",   "i: erunt"}},
    {PassivePresentSubjunctive,      Stem::Present, {"ear",            "ea:ris",       "ea:tur",        "ea:mur",      "ea:mini:",    "eantur"}},
    {PassiveImperfectSubjunctive,    Stem::Present, {"e:rer",          "e:re:ris",     "e:re:tur",      "e:re:mur",    "e:re:mini:",  "e:rentur"}},
    {PassivePerfectSubjunctive,      Stem::Supine,  {"us sim",         "us si:s",      "us sit",        "i: si:mus",   "i: si:tis",   "i: sint"}},
    {PassivePluperfectSubjunctive,   Stem::Supine,  {"us essem",       "us esse:s",    "us esset",      "i: esse:mus", "i: esse:tis", "i: essent"}},
}};

// clang-format on

} // namespace verbs
