#include "verbdrills/verb_records.h"

#include "shell/settings.h"
#include "verbdrills/conjugation_drill.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/tense_names.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

using shell::LanguageTexts;

namespace {

// A form by its class, 1 to 8, and its number, 1 to 126.
struct Asked {
    int verbClass;
    int formNumber;

    const LanguageTexts& className() const
    {
        return quizClassNames()[static_cast<std::size_t>(verbClass - verbs::FirstConjugation)];
    }
    const LanguageTexts& tense() const
    {
        return NamesOfTenses.at(static_cast<std::size_t>((formNumber - 1) / verbs::PersonCount));
    }
    const LanguageTexts& person() const
    {
        return NamesOfPersons.at(static_cast<std::size_t>((formNumber - 1) % verbs::PersonCount));
    }
    const std::string& infinitive() const { return verbs::verbTables.Infinitive[verbClass]; }
};

std::string placeOf(const Asked& form)
{
    return shell::placeOf(*form.className().english, *form.tense().english, *form.person().english);
}

std::string inWords(const Asked& form)
{
    return form.infinitive() + ", " + std::string(form.tense().currentOrDesigned()) + ", " +
           std::string(form.person().currentOrDesigned());
}

} // namespace

shell::AnswerRecord recordOfConjugation(const std::string& written, bool right)
{
    const Asked form{verbs::currentParadigm.ConjugationCode, conjugationDrill.FormRow + 1};
    return {.exercise = std::string(shell::exercise::Conjugation),
            .word = form.infinitive(),
            .place = placeOf(form),
            .asked = inWords(form),
            .expected = conjugationDrill.CorrectForm,
            .written = written,
            .right = right};
}

shell::AnswerRecord recordOfIdentification(const Identification& written, bool right)
{
    const Asked form{verbQuiz.QuizConjugation, verbQuiz.QuizRow};
    return {.exercise = std::string(shell::exercise::Quiz),
            .word = form.infinitive(),
            .place = placeOf(form),
            .asked = formAsked(),
            .expected = describe(rightIdentification()),
            .written = describe(written),
            .right = right};
}

} // namespace verbdrills
