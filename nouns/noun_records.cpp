#include "nouns/noun_records.h"

#include "nouns/case_names.h"
#include "nouns/chooser_rows.h"
#include "nouns/declension_drill.h"
#include "nouns/noun_question.h"
#include "nouns/noun_tables.h"
#include "nouns/paradigm_names.h"
#include "nouns/pronoun_columns.h"
#include "nouns/pronoun_drill.h"
#include "shell/settings.h"

namespace nouns {

namespace {

std::string_view nameOfParadigm(int paradigm)
{
    return *ParadigmNames.at(static_cast<std::size_t>(paradigm - 1)).texts.english;
}

std::string_view nameOfCase(int inCase)
{
    return CaseNames.at(static_cast<std::size_t>((inCase - 1) % CasesOfNumber));
}

const shell::LanguageTexts& numberOf(int inCase)
{
    return inCase < NominativePlural ? SingularTexts : PluralTexts;
}

std::string caseAndNumber(int inCase, std::string_view number)
{
    return std::string(nameOfCase(inCase)).append(" ").append(number);
}

std::string caseInEnglish(int inCase)
{
    return caseAndNumber(inCase, *numberOf(inCase).english);
}

const std::string& nominative(int paradigm)
{
    return nounTables.NounForms[paradigm][NominativeSingular];
}

std::string_view nameOfGroup(int group)
{
    return *PronounRows.at(static_cast<std::size_t>(group)).latin;
}

// The reflexive has no nominative.
const std::string& pronounOf(int group, int column)
{
    const int first = group * ColumnsOfGroup + 1;
    const auto& forms = pronounDrill.PronounForms[columnsAreOneWord(group) ? first : first + column];
    return forms[NominativeSingular].empty() ? forms[GenitiveSingular] : forms[NominativeSingular];
}

} // namespace

shell::AnswerRecord recordOfDeclension(const std::string& written, bool right)
{
    const int paradigm = declensionDrill.DrillParadigm;
    const int inCase = declensionDrill.CurrentCaseIndex + 1;
    return {.exercise = std::string(shell::exercise::Declination),
            .word = nominative(paradigm),
            .place = shell::placeOf(nameOfParadigm(paradigm), caseInEnglish(inCase)),
            .asked =
                nominative(paradigm) + ", " + caseAndNumber(inCase, numberOf(inCase).currentOrDesigned()),
            .expected = declensionDrill.ExpectedAnswer,
            .written = written,
            .right = right};
}

shell::AnswerRecord recordOfPronoun(const std::string& written, bool right)
{
    const int group = pronounDrill.Group;
    const int column = (pronounDrill.CurrentCell - 1) / CasesOfNumber;
    const int inCase = pronounDrill.FirstCase + (pronounDrill.CurrentCell - 1) % CasesOfNumber;
    const std::string_view nameOfColumn = columnTexts(group, inCase).at(static_cast<std::size_t>(column));
    return {.exercise = std::string(shell::exercise::Pronouns),
            .word = pronounOf(group, column),
            .place = shell::placeOf(nameOfGroup(group), caseInEnglish(inCase), nameOfColumn),
            .asked = std::string(nameOfGroup(group))
                         .append(", ")
                         .append(nameOfColumn)
                         .append(" ")
                         .append(nameOfCase(inCase)),
            .expected = pronounDrill.ExpectedAnswer,
            .written = written,
            .right = right};
}

shell::AnswerRecord recordOfTicks(bool right)
{
    const int paradigm = nounQuestion.QuizParadigmIndex + 1;
    return {.exercise = std::string(shell::exercise::NounQuiz),
            .word = nominative(paradigm),
            .place = shell::placeOf(nameOfParadigm(paradigm), caseInEnglish(nounQuestion.QuizCaseIndex + 1)),
            .asked = askedForm(),
            .expected = rightCasesInWords(),
            .written = tickedCasesInWords(),
            .right = right};
}

} // namespace nouns
