#include "verbdrills/gloss.h"

#include "shell/settings.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

namespace {

constexpr std::string_view LanguageOfGermanGlosses = "Kraut"; // sic

GlossParts partsOf(int verbClass, std::string_view person)
{
    const auto& tables = verbs::verbTables;
    return {person, tables.BaseGloss[verbClass], tables.PastGloss[verbClass],
            tables.ParticipleGloss[verbClass], tables.PresentParticipleGloss[verbClass]};
}

// The interface speaks English where the glosses speak German.
std::string_view germanPerson(int person)
{
    return verbs::GermanPersons.at(static_cast<std::size_t>(person - verbs::FirstSingular));
}

} // namespace

std::optional<std::string> glossOfPerson(int person)
{
    const int block = verbs::currentParadigm.TenseMoodCode;
    const int verbClass = verbs::currentParadigm.ConjugationCode;
    const std::string& language = shell::settings.CurrentLanguage;
    if (language == shell::language::English)
        return englishGloss(block, verbClass, person,
                            partsOf(verbClass, verbs::verbTables.PersonLabels[person]));
    if (language == LanguageOfGermanGlosses)
        return germanGloss(block, verbClass, person, partsOf(verbClass, germanPerson(person)));
    return {};
}

} // namespace verbdrills
