#include "tables/readings.h"

#include "nouns/case_names.h"
#include "shell/language_texts.h"
#include "tables/pronoun_table.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/verb_question.h"

#include <string_view>

namespace tables {

namespace {

using namespace nouns;

std::string caseBehind(std::string_view number, int inCase)
{
    const auto index = static_cast<std::size_t>((inCase - NominativeSingular) % CasesOfNumber);
    return std::string(number).append(" ").append(CaseTexts.at(index).currentOrDesigned());
}

std::string pronounInWords(int group, int cell)
{
    const int column = (cell - 1) / CaseCount;
    const int inCase = (cell - 1) % CaseCount + NominativeSingular;
    return caseBehind(columnOfPronouns(group, column, inCase), inCase);
}

} // namespace

std::string cellInWords(const Word& word, int cell)
{
    switch (word.kind) {
    case WordKind::Verb:
        return verbdrills::describe(verbdrills::identificationOf(word.paradigm, cell));
    case WordKind::Noun:
        return caseBehind((cell < NominativePlural ? SingularOfCase : PluralOfCase).currentOrDesigned(),
                          cell);
    case WordKind::Pronoun:
        break;
    }
    return pronounInWords(word.paradigm, cell);
}

ReadingTexts textsOf(const Reading& reading)
{
    return {asShown(reading.form).text, asShown(nameOf(reading.word)).text,
            cellInWords(reading.word, reading.cell)};
}

std::string inWords(const ReadingTexts& texts)
{
    return texts.form + ": " + texts.word + ", " + texts.grammar;
}

} // namespace tables
