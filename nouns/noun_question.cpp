#include "nouns/noun_question.h"

#include "nouns/declensions.h"
#include "nouns/noun_tables.h"
#include "platform/random.h"
#include "shell/settings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace nouns {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;

NounQuestion nounQuestion;

namespace {

constexpr int DrawnParadigms = 8;
constexpr int DrawnCases = 9;

constexpr int NominativeIndex = NominativeSingular - 1;

using Groups = std::array<std::string_view, 4>;

// Cases with one form: 0 to 4 nominative, genitive, dative, accusative, ablative singular, 5 to 9 the plural.
// clang-format off
constexpr std::array<Groups, ParadigmCount> GroupTable = {{
    {"04",   "125", "79"},       // puella
    {"15",   "24",  "79"},       // hortus
    {"15",   "24",  "79"},       // ager
    {"03",   "24",  "58", "79"}, // do:num
    {"0158", "79"},              // fru:ctus
    {"0234", "58",  "79"},       // cornu:
    {"058",  "12",  "79"},       // die:s
    {"58",   "79"},              // re:x
    {"03",   "58",  "79"},       // no:men
}};
// clang-format on

constexpr std::array CaseWords = {" Nominative", " Genitive", " Dative", " Accusative", " Ablative"};

// Appends the words of five cases, from the one with this index, behind the name of their number; nothing
// where none is set.
void appendCases(std::string& text, std::string_view number, int first)
{
    const CaseSet& cases = nounQuestion.QuizRightCases;
    const auto five = cases.begin() + first;
    if (std::find(five, five + CasesOfNumber, FlagTrue) == five + CasesOfNumber)
        return;
    text += number;
    for (int i = 0; i < CasesOfNumber; ++i)
        if (cases[first + i] == FlagTrue)
            text += CaseWords.at(static_cast<std::size_t>(i));
}

} // namespace

CaseSet casesOfOneForm(int paradigmIndex, int caseIndex)
{
    CaseSet cases;
    cases[caseIndex] = FlagTrue;
    for (const std::string_view group : GroupTable.at(static_cast<std::size_t>(paradigmIndex)))
        if (group.find(static_cast<char>('0' + caseIndex)) != std::string_view::npos)
            for (const char member : group)
                cases[member - '0'] = FlagTrue;
    if (paradigmIndex + 1 == FourthDeclension && settings.ShowVowelLength == FlagTrue)
        cases[NominativeIndex] = FlagFalse;
    return cases;
}

void drawNounQuestion()
{
    platform::seedFromClock();
    nounQuestion.QuizParadigmIndex = static_cast<std::int16_t>(platform::draw(DrawnParadigms));
    nounQuestion.QuizCaseIndex = static_cast<std::int16_t>(platform::draw(DrawnCases));
    BuildNounParadigms();
    nounQuestion.QuizRightCases = casesOfOneForm(nounQuestion.QuizParadigmIndex, nounQuestion.QuizCaseIndex);
    nounQuestion.QuizTickedCases.fill(FlagFalse);
}

const std::string& askedForm()
{
    return nounTables.NounForms[nounQuestion.QuizParadigmIndex + 1][nounQuestion.QuizCaseIndex + 1];
}

const std::string& askedNoun()
{
    return nounName(nounQuestion.QuizParadigmIndex + 1);
}

std::string drawnIndexes()
{
    return std::to_string(nounQuestion.QuizParadigmIndex) + ":" + std::to_string(nounQuestion.QuizCaseIndex);
}

bool ticksAreRight()
{
    return nounQuestion.QuizTickedCases == nounQuestion.QuizRightCases;
}

// The small letter of "singular" beside the capital of " Plural" is meant.
std::string rightCasesInWords()
{
    std::string text;
    appendCases(text, "singular", NominativeIndex);
    appendCases(text, " Plural", CasesOfNumber);
    return text;
}

} // namespace nouns
