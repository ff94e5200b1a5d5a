#include "verbdrills/verb_question.h"

#include "shell/settings.h"
#include "verbs/paradigm.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

namespace {

constexpr int PersonsOfNumber = 3;

} // namespace

Identification identificationOf(int verbClass, int formNumber)
{
    const int formInBlock = (formNumber - 1) % verbs::PersonCount + 1;
    const bool plural = formInBlock > PersonsOfNumber;
    return {.classRow = verbClass - verbs::FirstConjugation,
            .tenseRow = (formNumber - 1) / verbs::PersonCount,
            .person = plural ? formInBlock - PersonsOfNumber : formInBlock,
            .number = plural ? quiz_number::Plural : quiz_number::Sing};
}

void identifyForm()
{
    const Identification form = identificationOf(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
    verbQuiz.QuizNumber = form.number;
    verbQuiz.QuizPerson = static_cast<std::int16_t>(form.person);
    verbQuiz.QuizAnswerConjugation = verbQuiz.QuizConjugation;
    verbQuiz.QuizAnswerTense = static_cast<std::int16_t>(form.tenseRow);
}

Identification rightIdentification()
{
    return {.classRow = verbQuiz.QuizAnswerConjugation - 1,
            .tenseRow = verbQuiz.QuizAnswerTense,
            .person = verbQuiz.QuizPerson,
            .number = verbQuiz.QuizNumber == quiz_number::Plural ? quiz_number::Plural : quiz_number::Sing};
}

bool judgeIdentification(const Identification& identification)
{
    shell::settings.ExerciseType = shell::exercise::Quiz;
    const bool right = identification == rightIdentification();
    if (right)
        verbQuiz.formIsAsked = false;
    return right;
}

std::string formAsked()
{
    return verbs::verbTables.Forms[verbQuiz.QuizConjugation][verbQuiz.QuizRow];
}

std::string titleOfFormAsked()
{
    return verbs::verbTables.ClassTitles[verbQuiz.QuizConjugation];
}

} // namespace verbdrills
