#include "verbs/verb_list.h"

#include "shell/vowel_marks.h"

namespace verbs {

VerbRecord verbAt(int verbClass, int number)
{
    const int place = number - 1;
    return {verbList.PresentStem[verbClass][number],
            verbList.PerfectStem[verbClass][number],
            verbList.SupineStem[verbClass][number],
            {verbList.BaseForm[verbClass][place], verbList.Past[verbClass][place],
             verbList.PastParticiple[verbClass][place], verbList.PresentParticiple[verbClass][place]}};
}

VerbRecord verbAsWritten(int verbClass, int number)
{
    VerbRecord verb = verbAt(verbClass, number);
    const auto& [present, perfect, supine] = verbList.StemsAsWritten[verbClass][number];
    verb.presentStem = present;
    verb.perfectStem = perfect;
    verb.supineStem = supine;
    return verb;
}

void storeVerb(int verbClass, int number, const VerbRecord& verb)
{
    verbList.PresentStem[verbClass][number] = shell::stemAsShown(verb.presentStem);
    verbList.PerfectStem[verbClass][number] = shell::stemAsShown(verb.perfectStem);
    verbList.SupineStem[verbClass][number] = shell::stemAsShown(verb.supineStem);
    verbList.StemsAsWritten[verbClass][number] = {verb.presentStem, verb.perfectStem, verb.supineStem};
    const int place = number - 1;
    verbList.BaseForm[verbClass][place] = verb.translations[0];
    verbList.Past[verbClass][place] = verb.translations[1];
    verbList.PastParticiple[verbClass][place] = verb.translations[2];
    verbList.PresentParticiple[verbClass][place] = verb.translations[3];
}

} // namespace verbs
