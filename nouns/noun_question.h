#pragma once

#include "nouns/noun_paradigm.h"
#include "platform/flag.h"
#include "platform/table.h"

#include <cstdint>
#include <string>

namespace nouns {

/// One flag for each case, 0 to 9: the number of the case minus one.
using CaseSet = platform::Table<platform::Flag, CaseCount>;

/// The question of the noun quiz. There is one, `nounQuestion`; assigning `{}` resets it. The forms that it
/// asks about stand in `nounTables`.
struct NounQuestion {
    /// The paradigm asked, 0 to 7: its number minus one.
    std::int16_t QuizParadigmIndex = 0;

    /// The case that was drawn, 0 to 8.
    std::int16_t QuizCaseIndex = 0;

    /// The cases that the form can stand for, and those that the learner ticked.
    CaseSet QuizRightCases;
    CaseSet QuizTickedCases;

    /// How many forms were judged since the quiz began, and how many of them rightly ticked. They are counts
    /// of the quiz's own: those that the drills share stay as they are.
    int formsJudged = 0;
    int formsRight = 0;
};

inline NounQuestion nounQuestion;

/// The cases that are marked together with a case, by the index of the paradigm, 0 to 8: fixed groups of the
/// grammar, those in which the paradigm has one ending, long vowels or short. The fourth declension in -us
/// alone goes by `ShowVowelLength`: with marks its nominative singular is never marked, not even where it was
/// drawn.
CaseSet casesOfOneForm(int paradigmIndex, int caseIndex);

/// Begins the counts anew.
void beginNounQuiz();

/// Draws the next question, generates the nouns, and unticks all cases. The neuter of the third declension
/// and the ablative plural are never drawn.
void drawNounQuestion();

/// The form that is asked about, and the caption of its noun; empty in a language that builds none.
const std::string& askedForm();
const std::string& askedNoun();

/// The indexes that were drawn, with ":" between them.
std::string drawnIndexes();

/// Judges the ticks and counts the form: true when exactly the right cases are ticked.
bool judgeTicks();

/// The share of the forms that were rightly ticked, as the drills show their score. Not before one was
/// judged.
std::string nounQuizScore();

/// The right cases in words: "singular Genitive Dative Plural Nominative".
std::string rightCasesInWords();

/// The cases that are ticked, likewise.
std::string tickedCasesInWords();

} // namespace nouns
