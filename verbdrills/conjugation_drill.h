#pragma once

#include "platform/flag.h"
#include "platform/table.h"
#include "shell/round.h"
#include "verbdrills/other_ending.h"
#include "verbs/paradigm.h"

#include <cstdint>
#include <string>

namespace verbdrills {

/// Answer boxes of the conjugation drill, 0 to 5: one for each person.
inline constexpr int BoxCount = verbs::PersonCount;

/// Where the conjugation drill stands. There is one, `conjugationDrill`; assigning `{}` resets it. The
/// paradigm that is drilled stands in `verbs::currentParadigm`.
struct ConjugationDrill {
    /// The form asked is number `FormRow` + 1 of its class: 0 to 125.
    std::int16_t FormRow = 0;

    /// The person asked: 0 for the first singular to 5 for the third plural.
    std::int16_t PersonIndex = 0;

    /// The person with which a round in random order began. Nothing reads it.
    std::int16_t RoundStartPerson = 0;

    /// The form that the person asked must receive; empty where there is no such form.
    std::string CorrectForm;

    /// The answers given in this round, by person. Nothing reads it.
    platform::Table<std::string, BoxCount> AnswerSlots;

    /// The box that last received the focus.
    std::int16_t FocusedBox = 0;

    /// 1 once an answer was checked. Nothing reads it.
    std::int16_t FeedbackPending = 0;

    /// The class title, a colon and a blank, and the tense title.
    std::string DrillHeading;

    /// Persons already answered right in this round, in random order.
    platform::Table<platform::Flag, BoxCount + 1> PersonDone;
};

inline ConjugationDrill conjugationDrill;

/// Begins a round of the current tense with the first person, or in random order with any.
void beginRound();

/// Sets the question: `CorrectForm`, and the titles of the current paradigm with the verb that is drilled.
void setConjugationQuestion();

/// Builds `DrillHeading`.
void buildDrillHeading();

/// Whether an answer is `CorrectForm`, letter by letter; notes the answer and sets `FeedbackPending`.
bool judgeConjugation(const std::string& answer);

/// Which persons of the tense have this form.
Persons personsWithForm(const std::string& answer);

/// Which tense is drilled, of those of its class that have forms; which class, while one tense is drilled
/// through the classes.
shell::Place placeOfTense();
shell::Place placeOfClass();

/// Where the drill goes after a right answer.
enum class Advance {
    NextPerson,    ///< the same tense goes on
    NextRound,     ///< the boxes are emptied for the next tense, or the next class
    TenseFinished, ///< one tense was drilled through the classes: it is chosen anew
    ClassFinished, ///< the class has no further tense: the drill is left
};

/// Moves on after a right answer, in the order that `QuestionOrder` says; beeps at the end of a round when
/// `SoundOn` is true.
Advance advanceAfterRightAnswer();

/// What leaving the drill resets: the tense, the person and the score.
void resetAfterLeaving();

} // namespace verbdrills
