#pragma once

#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

/// Rows of the conjugation chooser: the classes as a grammar lists them, the -io verbs before the fourth
/// conjugation, and at last the row that leads to the tenses.
inline constexpr int ConjugationRowCount = 9;
inline constexpr int SingleTenseRow = 8;
inline constexpr std::array OfferedClasses = {
    verbs::FirstConjugation,
    verbs::SecondConjugation,
    verbs::ThirdConjugation,
    verbs::ThirdIoConjugation,
    verbs::FourthConjugation,
    verbs::Esse,
    verbs::Velle,
    verbs::Ferre,
};

static_assert(OfferedClasses.size() == SingleTenseRow);

/// What showing the conjugation chooser sets back: a whole class is to be drilled, from its first form.
void beginConjugationChoice();

/// What a row of the conjugation chooser leads to.
enum class ConjugationChoice { None, Paradigm, SingleTense };

/// Takes a row of the chooser, 0 to 8: sets `ConjugationCode`, or `SingleTenseMode` for the last row. Another
/// row chooses nothing.
ConjugationChoice chooseConjugation(int row);

/// What showing the tense chooser sets: `SingleTenseMode`.
void beginTenseChoice();

/// Takes a row of the tense chooser, 0 to 20: that tense of the first conjugation, from its first person.
/// Resets the score. Returns false for another row, which chooses nothing.
bool chooseTense(int row);

/// Draws a verb of each class and generates the forms of all classes, with their titles and translations, and
/// the person labels. Goes back to the present indicative, unless a single tense is drilled.
void generateParadigms();

} // namespace verbdrills
