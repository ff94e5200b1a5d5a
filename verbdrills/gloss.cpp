#include "verbdrills/gloss.h"

#include "shell/settings.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

namespace {

constexpr std::string_view LanguageOfGermanGlosses = "Kraut"; // sic

GlossParts partsOf(int verbClass, int person)
{
    const auto& tables = verbs::verbTables;
    return {tables.PersonLabels[person], tables.BaseGloss[verbClass], tables.PastGloss[verbClass],
            tables.ParticipleGloss[verbClass], tables.PresentParticipleGloss[verbClass]};
}

} // namespace

std::optional<std::string> glossOfPerson(int person)
{
    const int block = verbs::currentParadigm.TenseMoodCode;
    const int verbClass = verbs::currentParadigm.ConjugationCode;
    const std::string& language = shell::settings.CurrentLanguage;
    if (language == shell::language::English)
        return englishGloss(block, verbClass, person, partsOf(verbClass, person));
    if (language == LanguageOfGermanGlosses)
        return germanGloss(block, verbClass, person, partsOf(verbClass, person));
    return {};
}

} // namespace verbdrills
