#include "platform/random.h"
#include "shell/vowel_marks.h"
#include "verbs/fourth_conjugation.h"
#include "verbs/generators.h"
#include "verbs/shared_endings.h"
#include "verbs/third_conjugation.h"
#include "verbs/third_io_conjugation.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>

namespace verbs {

namespace {

int buildClass(VerbClass verbClass, std::string_view infinitiveEnding, std::span<const EndingRow> endings)
{
    const int number = drawVerb(verbClass);
    takeVerb(verbClass, number, infinitiveEnding);
    takeGermanGloss(verbClass, number);
    const VerbStems stems = stemsOf(verbClass, number);
    buildForms(verbClass, stems, endings);
    buildForms(verbClass, stems, PerfectSystem);
    buildForms(verbClass, stems, MasculineCompounds);
    return number;
}

void shortenImperative(std::string_view presentStem)
{
    if (std::ranges::find(StemsWithBareImperative, presentStem) != StemsWithBareImperative.end())
        verbTables.Forms[ThirdConjugation][formNumber(Imperative, SecondSingular)] = presentStem;
}

// The fourth verb of the fourth conjugation has this extra German translation, whichever verb it is.
void correctGermanList()
{
    constexpr int fourthVerb = 3;
    verbList.German[FourthConjugation][fourthVerb] = "gräbe";
}

} // namespace

void buildThirdAndFourthConjugations()
{
    shell::setVowelMarkWhereShown();
    platform::seedFromClock();
    const int number = buildClass(ThirdConjugation, "ere", ThirdConjugationEndings);
    shortenImperative(verbList.PresentStem[ThirdConjugation][number]);
    verbTables.TenseCount[ThirdConjugation] = BlockCount;

    // Not the count of the -io verbs: this is meant.
    buildClass(ThirdIoConjugation, "ere", ThirdIoConjugationEndings);
    verbTables.TenseCount[FourthConjugation] = BlockCount;

    correctGermanList();
    buildClass(FourthConjugation, "i:re", FourthConjugationEndings);
    verbTables.TenseCount[FourthConjugation] = BlockCount;
}

} // namespace verbs
