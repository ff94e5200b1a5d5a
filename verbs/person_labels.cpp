#include "verbs/person_labels.h"

#include "shell/settings.h"
#include "verbs/paradigm.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

#include <array>
#include <string_view>

namespace verbs {

namespace {

using Labels = std::array<std::string_view, PersonCount>;

constexpr Labels EnglishLabels = {"I", "you", "he, she, it", "we", "all of you", "they"};
constexpr Labels GermanLabels = {"ich", "du", "er/ sie/ es", "wir", "ihr", "sie"};

} // namespace

void setPersonLabels()
{
    const bool german = shell::settings.CurrentLanguage == shell::language::German;
    int person = FirstSingular;
    for (const std::string_view label : german ? GermanLabels : EnglishLabels)
        verbTables.PersonLabels[person++] = label;

    setParadigmTitles();
    const int verbClass = currentParadigm.ConjugationCode;
    currentParadigm.TenseLabel =
        verbTables.ClassTitles[verbClass] + verbTables.TenseTitles[currentParadigm.TenseMoodCode];
    currentParadigm.VerbLabel = verbTables.Infinitive[verbClass];
}

} // namespace verbs
