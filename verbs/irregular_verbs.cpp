#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/ending_rows.h"
#include "verbs/generators.h"
#include "verbs/verb_forms.h"
#include "verbs/verb_tables.h"

#include <array>
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
    TenseBlock lastTense;
    Glosses english;
    Glosses german;
};

// clang-format off
constexpr std::array<IrregularVerb, 3> Verbs = {{
    //      last tense
    {Esse,  Imperative,
     {"be",   "was",    "been",   "being",   {}}, {"bin",  "war",    "gewesen",  {},      {}}},
    {Velle, PluperfectSubjunctive,
     {"want", "wanted", "wanted", "wanting", {}}, {"woll", "wollte", "gewollt",  {},      {}}},
    {Ferre, PassivePluperfectSubjunctive,
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
    const auto& [verbClass, infinitive, stems, rows] = pageOf(verb.verbClass);
    std::string supine;
    shell::appendMarked(supine, stems.supine, shell::settings.VowelMark);
    buildForms(verbClass, {stems.present, stems.perfect, supine});
    verbTables.Infinitive[verbClass] = infinitive;
    verbTables.TenseCount[verbClass] = verb.lastTense;
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
