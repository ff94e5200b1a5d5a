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

struct IrregularGlosses {
    Glosses english;
    Glosses german;
};

// clang-format off
constexpr IrregularGlosses EsseGlosses  = {{"be",   "was",    "been",   "being",   {}}, {"bin",  "war",    "gewesen",  {},      {}}};
constexpr IrregularGlosses VelleGlosses = {{"want", "wanted", "wanted", "wanting", {}}, {"woll", "wollte", "gewollt",  {},      {}}};
constexpr IrregularGlosses FerreGlosses = {{"bear", "bore",   "borne",  "bearing", {}}, {"trag", "trug",   "getragen", "trüge", "träg"}};
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
void setGlossesInLanguage(VerbClass verbClass, const IrregularGlosses& glosses)
{
    namespace language = shell::language;
    const std::string& current = shell::settings.CurrentLanguage;
    if (current == language::German)
        setGlosses(verbClass, glosses.german);
    else if (current == language::English || current == language::French || current == language::Italian ||
             current == language::Spanish)
        setGlosses(verbClass, glosses.english);
}

std::string marked(std::string_view text)
{
    std::string form;
    shell::appendMarked(form, text, shell::settings.VowelMark);
    return form;
}

void setTenseCount(VerbClass verbClass, int blocks)
{
    verbTables.TenseCount[verbClass] = static_cast<std::int16_t>(blocks);
}

void buildEsse()
{
    verbTables.Infinitive[Esse] = "esse";
    setGlossesInLanguage(Esse, EsseGlosses);
    buildForms(Esse, {}, EsseForms);
    buildForms(Esse, {.present = {}, .perfect = "fu", .supine = {}}, PerfectSystem);
    setTenseCount(Esse, Imperative);
}

void buildVelle()
{
    verbTables.Infinitive[Velle] = "velle";
    setGlossesInLanguage(Velle, VelleGlosses);
    buildForms(Velle, {}, VelleForms);
    buildForms(Velle, {.present = {}, .perfect = "volu", .supine = {}}, PerfectSystem);
    setTenseCount(Velle, PluperfectSubjunctive);
}

void buildFerre()
{
    setGlossesInLanguage(Ferre, FerreGlosses);
    verbTables.Infinitive[Ferre] = "ferre";
    const std::string supine = marked("la:t");
    const VerbStems stems = {.present = {}, .perfect = "tul", .supine = supine};
    buildForms(Ferre, stems, FerreForms);
    buildForms(Ferre, stems, PerfectSystem);
    buildForms(Ferre, stems, MasculineCompounds);
    setTenseCount(Ferre, BlockCount);
}

} // namespace

void buildIrregularVerbs()
{
    buildEsse();
    buildVelle();
    resetTense();
    buildFerre();
}

} // namespace verbs
