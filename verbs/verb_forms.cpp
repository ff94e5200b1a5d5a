#include "verbs/verb_forms.h"

#include "verbs/first_conjugation.h"
#include "verbs/fourth_conjugation.h"
#include "verbs/irregular_forms.h"
#include "verbs/second_conjugation.h"
#include "verbs/shared_endings.h"
#include "verbs/third_conjugation.h"
#include "verbs/third_io_conjugation.h"

#include <algorithm>

namespace verbs {

namespace {

// clang-format off
constexpr std::array<ClassPage, LastClass> Pages = {{
    //                   infinitive  present, perfect, supine  present system          perfect system  compounds
    {FirstConjugation,   "a:re",     {},                       {FirstConjugationEndings,   PerfectSystem, {}}},
    {SecondConjugation,  "e:re",     {},                       {SecondConjugationEndings,  PerfectSystem, {}}},
    {ThirdConjugation,   "ere",      {},                       {ThirdConjugationEndings,   PerfectSystem, MasculineCompounds}},
    {FourthConjugation,  "i:re",     {},                       {FourthConjugationEndings,  PerfectSystem, MasculineCompounds}},
    {ThirdIoConjugation, "ere",      {},                       {ThirdIoConjugationEndings, PerfectSystem, MasculineCompounds}},
    {Esse,               "esse",     {"", "fu",   ""},         {EsseForms,                 PerfectSystem, {}}},
    {Velle,              "velle",    {"", "volu", ""},         {VelleForms,                PerfectSystem, {}}},
    {Ferre,              "ferre",    {"", "tul",  "la:t"},     {FerreForms,                PerfectSystem, MasculineCompounds}},
}};
// clang-format on

static_assert(Pages.front().verbClass == FirstConjugation && Pages.back().verbClass == Ferre);

} // namespace

const ClassPage& pageOf(int verbClass)
{
    return Pages.at(static_cast<std::size_t>(verbClass - FirstConjugation));
}

bool hasBareImperative(int verbClass, std::string_view presentStem)
{
    return verbClass == ThirdConjugation &&
           std::ranges::find(StemsWithBareImperative, presentStem) != StemsWithBareImperative.end();
}

std::string_view stemFor(Stem stem, const VerbStems& stems)
{
    switch (stem) {
    case Stem::Present:
        return stems.present;
    case Stem::Perfect:
        return stems.perfect;
    case Stem::Supine:
        return stems.supine;
    case Stem::None:
        break;
    }
    return {};
}

FormsOfVerb conjugate(int verbClass, const VerbStems& stems)
{
    FormsOfVerb forms;
    for (const auto& rows : pageOf(verbClass).rows)
        for (const EndingRow& row : rows) {
            auto* form = forms.begin() + formNumber(row.block, FirstSingular) - 1;
            for (const std::string_view ending : row.endings)
                *form++ = partsOf(stemFor(row.stem, stems), ending);
        }
    return forms;
}

} // namespace verbs
