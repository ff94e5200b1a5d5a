#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/generators.h"
#include "verbs/irregular_forms.h"
#include "verbs/shared_endings.h"
#include "verbs/verb_tables.h"

#include <optional>

namespace verbs {

namespace {

// An empty optional: the language leaves the translation as it was.
struct Glosses {
    std::string_view base;
    std::string_view past;
    std::string_view participle;
    std::optional<std::string_view> presentParticiple;
    std::optional<std::string_view> german;
};

struct IrregularVerb {
    VerbClass verbClass;
    std::string_view infinitive;
    std::string_view perfect;
    std::string_view supine;
    std::span<const EndingRow> forms;
    std::span<const EndingRow> compounds;
    TenseBlock lastTense;
    Glosses english;
    Glosses german;
};

// clang-format off
constexpr std::array<IrregularVerb, 3> Verbs = {{
    //               perfect supine  present system  compounds       last tense
    {Esse,  "esse",  "fu",   "",     EsseForms,  {},                 Imperative,
     {"be",   "was",    "been",   "being",   {}}, {"bin",  "war",    "gewesen",  {},      {}}},
    {Velle, "velle", "volu", "",     VelleForms, {},                 PluperfectSubjunctive,
     {"want", "wanted", "wanted", "wanting", {}}, {"woll", "wollte", "gewollt",  {},      {}}},
    {Ferre, "ferre", "tul",  "la:t", FerreForms, MasculineCompounds, PassivePluperfectSubjunctive,
     {"bear", "bore",   "borne",  "bearing", {}}, {"trag", "trug",   "getragen", "trüge", "träg"}},
}};
// clang-format on

void setGlosses(VerbClass verbClass, const Glosses& glosses)
{
    verbTables.BaseGloss[verbClass] = glosses.base;
    verbTables.PastGloss[verbClass] = glosses.past;
    verbTables.ParticipleGloss[verbClass] = glosses.participle;
    if (glosses.presentParticiple)
        verbTables.PresentParticipleGloss[verbClass] = *glosses.presentParticiple;
    if (glosses.german)
        verbTables.GermanGloss[verbClass - 1] = *glosses.german;
}

// Latin, and a language that is not known, leave the translations as they were.
void setGlossesInLanguage(const IrregularVerb& verb)
{
    namespace language = shell::language;
    const std::string& current = shell::settings.CurrentLanguage;
    if (current == language::German)
        setGlosses(verb.verbClass, verb.german);
    else if (current == language::English || current == language::French || current == language::Italian ||
             current == language::Spanish)
        setGlosses(verb.verbClass, verb.english);
}

void buildVerb(const IrregularVerb& verb)
{
    std::string supine;
    shell::appendMarked(supine, verb.supine, shell::settings.VowelMark);
    const VerbStems stems = {.present = {}, .perfect = verb.perfect, .supine = supine};
    for (const auto& rows : {verb.forms, std::span<const EndingRow>(PerfectSystem), verb.compounds})
        buildForms(verb.verbClass, stems, rows);
    verbTables.Infinitive[verb.verbClass] = verb.infinitive;
    verbTables.TenseCount[verb.verbClass] = verb.lastTense;
    setGlossesInLanguage(verb);
}

} // namespace

void buildIrregularVerbs()
{
    resetTense();
    for (const IrregularVerb& verb : Verbs)
        buildVerb(verb);
}

} // namespace verbs
