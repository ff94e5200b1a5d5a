#include "platform/random.h"
#include "shell/vowel_marks.h"
#include "verbs/first_conjugation.h"
#include "verbs/generators.h"
#include "verbs/second_conjugation.h"
#include "verbs/shared_endings.h"
#include "verbs/verb_tables.h"

namespace verbs {

namespace {

void buildFirstConjugation()
{
    platform::seedFromClock();
    const int number = drawVerb(FirstConjugation);
    takeVerb(FirstConjugation, number, "a:re");
    const VerbStems stems = stemsOf(FirstConjugation, number);
    buildForms(FirstConjugation, stems, FirstConjugationEndings);
    buildForms(FirstConjugation, stems, PerfectSystem);
    verbTables.TenseCount[FirstConjugation] = BlockCount;
}

void buildSecondConjugation()
{
    platform::seedFromClock();
    const int number = drawVerb(SecondConjugation);
    verbTables.SecondConjugationVerb = static_cast<std::int16_t>(number);
    takeVerb(SecondConjugation, number, "e:re");
    takeGermanGloss(SecondConjugation, number);
    const VerbStems stems = stemsOf(SecondConjugation, number);
    buildForms(SecondConjugation, stems, SecondConjugationEndings);
    buildForms(SecondConjugation, stems, PerfectSystem);
    verbTables.TenseCount[SecondConjugation] = BlockCount;
}

} // namespace

void buildRegularConjugations()
{
    resetTense();
    shell::setVowelMarkWhereShown();
    buildFirstConjugation();
    buildSecondConjugation();
}

} // namespace verbs
