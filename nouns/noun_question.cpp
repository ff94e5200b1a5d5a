#include "nouns/noun_question.h"

#include "nouns/declensions.h"
#include "nouns/noun_endings.h"
#include "nouns/noun_tables.h"
#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>

namespace nouns {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;

NounQuestion nounQuestion;

namespace {

constexpr int DrawnParadigms = ParadigmCount - 1; // sic: not the neuter of the third declension
constexpr int DrawnCases = CaseCount - 1;         // sic: not the ablative plural

constexpr int NominativeIndex = NominativeSingular - 1;

// True for endings that differ in the length of their vowels alone: puella, puella:.
constexpr bool areAlike(std::string_view ending, std::string_view other)
{
    const auto isLetter = [](char sign) { return sign != shell::LengthMark; };
    return std::ranges::equal(ending | std::views::filter(isLetter), other | std::views::filter(isLetter));
}

static_assert(areAlike("a", "a:") && areAlike("i:s", "i:s") && !areAlike("i:", "i:s"));

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
    const Endings& endings = EndingTable.at(static_cast<std::size_t>(paradigmIndex)).endings;
    const std::string_view drawn = endings.at(static_cast<std::size_t>(caseIndex));
    CaseSet cases;
    for (int i = 0; i < CaseCount; ++i)
        cases[i] = platform::flagOf(areAlike(endings.at(static_cast<std::size_t>(i)), drawn));
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
    return nounTables.NounCaption[nounQuestion.QuizParadigmIndex + 1];
}

std::string drawnIndexes()
{
    return std::to_string(nounQuestion.QuizParadigmIndex) + ":" + std::to_string(nounQuestion.QuizCaseIndex);
}

bool ticksAreRight()
{
    return nounQuestion.QuizTickedCases == nounQuestion.QuizRightCases;
}

std::string rightCasesInWords()
{
    std::string text;
    appendCases(text, "singular", NominativeIndex); // sic: a small letter
    appendCases(text, " Plural", CasesOfNumber);
    return text;
}

} // namespace nouns
