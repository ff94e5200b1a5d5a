#include "nouns/pronoun_drill.h"

#include "nouns/case_order.h"
#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <optional>

namespace nouns {

using shell::settings;

PronounDrill pronounDrill;

namespace {

constexpr std::string_view RandomInSmallLetters = "random";

bool isAskable(int cell)
{
    return !pronounFormAt(cell).empty() && pronounDrill.CellDone[cell] != platform::FlagTrue;
}

std::optional<int> drawCellLeft()
{
    const auto box = platform::drawFitting(CellCount, [](int number) { return isAskable(number + 1); });
    return box ? std::optional(*box + 1) : std::nullopt;
}

// The cell itself where it has a form, else the next one that has; past the last where there is none.
int firstWithFormFrom(int cell)
{
    while (cell <= CellCount && pronounFormAt(cell).empty())
        cell = nextInCaseOrder(cell - 1) + 1;
    return cell;
}

void ask(int cell)
{
    pronounDrill.CurrentCell = static_cast<std::int16_t>(cell);
}

bool inRandomOrder()
{
    return settings.QuestionOrder == RandomInSmallLetters;
}

// Asks the next box of this number; false when all have been asked.
bool askNextCell()
{
    if (!inRandomOrder()) {
        const int next = firstWithFormFrom(nextInCaseOrder(pronounDrill.CurrentCell - 1) + 1);
        if (next <= CellCount)
            ask(next);
        return next <= CellCount;
    }
    pronounDrill.CellDone[pronounDrill.CurrentCell] = platform::FlagTrue;
    const std::optional<int> next = drawCellLeft();
    if (next)
        ask(*next);
    return next.has_value();
}

void beginNumber(Case firstCase)
{
    pronounDrill.FirstCase = static_cast<std::int16_t>(firstCase);
    pronounDrill.CellDone.fill(platform::FlagFalse);
    ask(inRandomOrder() ? drawCellLeft().value() : firstWithFormFrom(1));
}

} // namespace

void BuildPronounForms()
{
    int firstColumn = 1;
    for (const PronounPage& page : PronounPages) {
        int inCase = NominativeSingular;
        for (const auto& row : page) {
            int column = firstColumn;
            for (const std::string_view form : row) {
                std::string& built = pronounDrill.PronounForms[column++][inCase];
                built.clear();
                shell::appendMarked(built, form, settings.VowelMark);
            }
            ++inCase;
        }
        firstColumn += ColumnsOfGroup;
    }
}

bool choosePronouns(int row)
{
    if (row < 0 || row >= PronounGroupCount)
        return false;
    pronounDrill.Group = static_cast<std::int16_t>(row);
    return true;
}

void beginPronouns()
{
    BuildPronounForms();
    beginNumber(NominativeSingular);
}

const std::string& pronounFormAt(int cell)
{
    const int column = pronounDrill.Group * ColumnsOfGroup + (cell - 1) / CasesOfNumber + 1;
    return pronounDrill.PronounForms[column][pronounDrill.FirstCase + (cell - 1) % CasesOfNumber];
}

void setPronounQuestion()
{
    pronounDrill.ExpectedAnswer = pronounFormAt(pronounDrill.CurrentCell);
}

bool isRightPronoun(const std::string& answer)
{
    return answer == pronounDrill.ExpectedAnswer;
}

PronounAdvance advancePronouns()
{
    if (askNextCell())
        return PronounAdvance::NextCell;
    beginNumber(pronounDrill.FirstCase == NominativeSingular ? NominativePlural : NominativeSingular);
    return PronounAdvance::NextNumber;
}

} // namespace nouns
