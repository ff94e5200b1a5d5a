#pragma once

#include "platform/flag.h"
#include "platform/table.h"
#include "verbs/paradigm.h"

namespace verbdrills {

/// The check boxes of the quiz's choice: classes 1 to 8 at 0 to 7, tenses at 0 to 20.
struct QuizTicks {
    platform::Table<bool, verbs::LastClass> classes;
    platform::Table<bool, verbs::BlockCount> tenses;

    bool operator==(const QuizTicks&) const = default;
};

/// `FlagTrue` once a choice was taken. Nothing reads it.
inline platform::Flag QuizIncludeSet = platform::FlagFalse;

/// The boxes that `QuizConjInclude` and `QuizTenseInclude` tick.
QuizTicks ticksOfQuiz();

/// All boxes ticked, or none.
QuizTicks everyTick();
QuizTicks noTick();

/// Stores the boxes in `QuizConjInclude` and `QuizTenseInclude` as they stand, even where none is ticked.
void storeTicks(const QuizTicks& ticks);

/// Takes the choice: stores it and sets `QuizIncludeSet`. Where no class is ticked, the first conjugation is
/// included. Where at most one tense is ticked, the present indicative is included as well: no other tense is
/// asked alone.
void takeTicks(const QuizTicks& ticks);

} // namespace verbdrills
