#pragma once

#include "nouns/noun_paradigm.h"
#include "platform/flag.h"
#include "platform/table.h"
#include "shell/round.h"

#include <cstdint>
#include <string>

namespace nouns {

/// Where the declension drill stands. There is one, `declensionDrill`; assigning `{}` resets it. The noun
/// that is declined stands in `nounTables`.
struct DeclensionDrill {
    /// 1 to 9; 0 while nothing is declined.
    std::int16_t DrillParadigm = 0;

    /// The box asked, 0 to 9: the number of its case minus one.
    std::int16_t CurrentCaseIndex = 0;

    /// The form that the box asked must receive.
    std::string ExpectedAnswer;

    /// True once the answer in the box was judged, until the learner returns to the box.
    platform::Flag AnswerGiven = platform::FlagFalse;

    /// Boxes answered right in this round, in random order.
    platform::Table<platform::Flag, CaseCount + 1> CaseDone;

    /// The answers given, by box. Nothing reads it.
    platform::Table<std::string, CaseCount> Answers;
};

inline DeclensionDrill declensionDrill;

/// What opening the chooser sets: the box that is asked first, any in random order, and empty answers.
void beginDeclensionChoice();

/// Takes a row of the chooser, 0 to 8: sets `DrillParadigm`. The rows name the third declension before the
/// fourth. Returns false for another row, which chooses nothing.
bool chooseDeclension(int row);

/// Draws the noun to be declined; no box is done.
void drawDeclension();

/// How the noun that was drawn for a paradigm, 1 to 9, is named to be declined: by its caption; in a language
/// that builds none, by its nominative, since nobody can decline a noun that is not named.
const std::string& nounName(int paradigm);

/// Sets `ExpectedAnswer` for the box asked.
void setDeclensionQuestion();

/// The learner is back at the box asked: its answer can be judged anew.
void returnToQuestion();

/// What came of checking an answer. An answer that was judged already and is still wrong is not judged again.
enum class Judgement { Right, Wrong, NotAgain };

/// Checks an answer against `ExpectedAnswer`, letter by letter; sets `AnswerGiven`.
Judgement judgeDeclension(const std::string& answer);

/// Whether a wrong answer is another form of the noun.
bool answersAnotherCase(const std::string& answer);

/// Whether it has the stem before the ending where that alone is asked.
bool answersWithStem(const std::string& answer);

/// The how-many-th form of the noun is asked.
shell::Place placeOfCase();

/// Where the drill goes after a right answer.
enum class DeclensionAdvance {
    NextCase,  ///< the same noun goes on
    NextRound, ///< all ten boxes were asked: another noun was drawn, and its nominative is asked first
};

/// Moves on after a right answer, in the order that `QuestionOrder` and `CaseOrder` say.
DeclensionAdvance advanceDeclension();

/// What leaving the drill resets: the paradigm and the box.
void leaveDeclension();

} // namespace nouns
