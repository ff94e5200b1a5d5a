#pragma once

#include "platform/flag.h"
#include "platform/table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace verbdrills {

/// The values of `QuizNumber`.
namespace quiz_number {
inline constexpr std::string_view Sing = "Sing";
inline constexpr std::string_view Plural = "Plural";
} // namespace quiz_number

/// The form that the verb quiz asks, and the classes it asked lately. There is one, `verbQuiz`; assigning
/// `{}` resets it.
struct VerbQuiz {
    /// The class of the form shown, 1 to 8.
    std::int16_t QuizConjugation = 0;

    /// The form number of the form shown. It may be drawn as 0, where there is no form. For ferre it is kept
    /// from the class drawn before.
    std::int16_t QuizRow = 0;

    /// What the form shown is: its person 1 to 3, its number, its class 1 to 8, its tense block counted from
    /// 0 to 20.
    std::int16_t QuizPerson = 0;
    std::string QuizNumber;
    std::int16_t QuizAnswerConjugation = 0;
    std::int16_t QuizAnswerTense = 0;

    /// Classes drawn lately, by class, and how many were drawn since the count last began.
    platform::Table<platform::Flag, 10> RecentConjugations;
    std::int16_t RecentCount = 0;

    /// The title of the tense that the drill stands at, kept where the class shown has a title. Nothing
    /// reads it.
    std::string TenseHeading;

    /// True from the drawing of a form until it was identified rightly.
    bool formIsAsked = false;
};

inline VerbQuiz verbQuiz;

/// What a form is said to be.
struct Identification {
    /// Row of the list of classes, 0 to 7; -1 where none is chosen.
    int classRow = -1;

    /// Row of the list of tenses, 0 to 20; -1 where none is chosen.
    int tenseRow = -1;

    /// 1 to 3.
    int person = 1;

    /// "Sing" or "Plural".
    std::string_view number = quiz_number::Sing;

    bool operator==(const Identification&) const = default;
};

/// What the form of a class, 1 to 8, with a number, 1 to 126, is.
Identification identificationOf(int verbClass, int formNumber);

/// Works out from `QuizConjugation` and `QuizRow`, 1 to 126, what the form is.
void identifyForm();

/// What the form shown is, in the rows of the lists.
Identification rightIdentification();

/// Whether what the learner says of the form is right; sets `ExerciseType` to "Quiz". A form identified
/// rightly is no longer asked.
bool judgeIdentification(const Identification& identification);

/// The form shown, and the title of its class as it stands: empty for a class that was not drilled yet.
std::string formAsked();
std::string titleOfFormAsked();

} // namespace verbdrills
