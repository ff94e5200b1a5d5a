#include "verbdrills/conjugation_choice.h"

#include "shell/score.h"
#include "verbdrills/conjugation_drill.h"
#include "verbs/generators.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

using verbs::currentParadigm;

void beginConjugationChoice()
{
    currentParadigm.SingleTenseMode = 0;
    conjugationDrill.FormRow = 0;
    conjugationDrill.PersonIndex = 0;
    conjugationDrill.AnswerSlots.fill({});
}

ConjugationChoice chooseConjugation(int row)
{
    currentParadigm.SingleTenseMode = 0;
    if (row == SingleTenseRow) {
        currentParadigm.SingleTenseMode = 1;
        return ConjugationChoice::SingleTense;
    }
    if (row < 0 || row > SingleTenseRow)
        return ConjugationChoice::None;
    currentParadigm.ConjugationCode = OfferedClasses.at(static_cast<std::size_t>(row));
    return ConjugationChoice::Paradigm;
}

void beginTenseChoice()
{
    currentParadigm.SingleTenseMode = 1;
}

bool chooseTense(int row)
{
    shell::resetScore();
    if (row < 0 || row >= verbs::BlockCount)
        return false;
    currentParadigm.TenseMoodCode = static_cast<std::int16_t>(row + 1);
    currentParadigm.ConjugationCode = verbs::FirstConjugation;
    conjugationDrill.FormRow = static_cast<std::int16_t>(verbs::PersonCount * row);
    conjugationDrill.PersonIndex = 0;
    return true;
}

void generateParadigms()
{
    verbs::setPersonLabels();
    verbs::buildFirstAndSecondConjugations();
    verbs::buildIrregularVerbs();
    verbs::buildThirdAndFourthConjugations();
}

} // namespace verbdrills
