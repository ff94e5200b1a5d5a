#include "nouns/noun_question.h"

#include "nouns/case_names.h"
#include "nouns/declensions.h"
#include "nouns/noun_tables.h"
#include "platform/random.h"
#include "shell/score.h"
#include "shell/settings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace nouns {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;

namespace {

constexpr int DrawnParadigms = ParadigmCount - 1; // sic: not the neuter of the third declension
constexpr int DrawnCases = CaseCount - 1;         // sic: not the ablative plural

constexpr int NominativeIndex = NominativeSingular - 1;

// The cases that have one form, each group under a letter; a case with a form of its own has a dot. They are
// fixed: a noun that departs from its paradigm is asked by them as well.
struct OneForm {
    std::string_view singular;
    std::string_view plural;

    constexpr char letterOf(int caseIndex) const
    {
        const auto index = static_cast<std::size_t>(caseIndex % CasesOfNumber);
        return caseIndex < CasesOfNumber ? singular.at(index) : plural.at(index);
    }
};

// clang-format off
constexpr std::array<OneForm, ParadigmCount> OneFormTable = {{
    // nominative, genitive, dative, accusative, ablative: singular, plural
    {"abb.a", "b.c.c"}, // puella
    {".ab.b", "a.c.c"}, // hortus
    {".ab.b", "a.c.c"}, // ager
    {"a.bab", "c.dcd"}, // do:num
    {"aa...", "a.bab"}, // fru:ctus
    {"a.aaa", "b.cbc"}, // cornu:
    {"abb..", "a.cac"}, // die:s
    {".....", "a.bab"}, // re:x
    {"a..a.", "b.cbc"}, // no:men
}};
// clang-format on

static_assert(!OneFormTable.back().plural.empty());

// Appends the words of five cases, from the one with this index, behind the name of their number; nothing
// where none is set.
void appendCases(std::string& text, const CaseSet& cases, std::string_view number, int first)
{
    const auto five = cases.begin() + first;
    if (std::find(five, five + CasesOfNumber, FlagTrue) == five + CasesOfNumber)
        return;
    text += number;
    for (int i = 0; i < CasesOfNumber; ++i)
        if (cases[first + i] == FlagTrue)
            text.append(" ").append(CaseNames.at(static_cast<std::size_t>(i)));
}

std::string inWords(const CaseSet& cases)
{
    std::string text;
    appendCases(text, cases, SingularName, NominativeIndex);
    const std::string plural = " " + std::string(PluralName); // sic: a blank, even in front of all
    appendCases(text, cases, plural, CasesOfNumber);
    return text;
}

} // namespace

CaseSet casesOfOneForm(int paradigmIndex, int caseIndex)
{
    const OneForm& forms = OneFormTable.at(static_cast<std::size_t>(paradigmIndex));
    const char drawn = forms.letterOf(caseIndex);
    CaseSet cases;
    for (int i = 0; i < CaseCount; ++i)
        cases[i] = platform::flagOf(i == caseIndex || (drawn != '.' && forms.letterOf(i) == drawn));
    if (paradigmIndex + 1 == FourthDeclension && settings.ShowVowelLength == FlagTrue)
        cases[NominativeIndex] = FlagFalse;
    return cases;
}

void beginNounQuiz()
{
    nounQuestion.formsJudged = 0;
    nounQuestion.formsRight = 0;
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

bool judgeTicks()
{
    const bool right = nounQuestion.QuizTickedCases == nounQuestion.QuizRightCases;
    ++nounQuestion.formsJudged;
    if (right)
        ++nounQuestion.formsRight;
    return right;
}

std::string nounQuizScore()
{
    return shell::scoreText(nounQuestion.formsRight, nounQuestion.formsJudged);
}

std::string rightCasesInWords()
{
    return inWords(nounQuestion.QuizRightCases);
}

std::string tickedCasesInWords()
{
    return inWords(nounQuestion.QuizTickedCases);
}

} // namespace nouns
