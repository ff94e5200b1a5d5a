#include "nouns/pronoun_drill.h"

#include "nouns/case_order.h"
#include "nouns/pronoun_columns.h"
#include "shell/round.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"

namespace nouns {

using shell::settings;

namespace {

constexpr std::string_view RandomInSmallLetters = "random"; // sic

bool hasForm(int cell)
{
    return !pronounFormAt(cell).empty();
}

int columnOf(int cell)
{
    return (cell - 1) / CasesOfNumber;
}

bool isOfWordAsked(int cell)
{
    return columnsAreOneWord(pronounDrill.Group) || columnOf(cell) == columnOf(pronounDrill.CurrentCell);
}

int cellAfter(int cell)
{
    return nextInCaseOrder(cell - 1) + 1;
}

// The cell itself where it has a form, else the next one that has; past the last where there is none.
int firstWithFormFrom(int cell)
{
    while (cell <= CellCount && !hasForm(cell))
        cell = cellAfter(cell);
    return cell;
}

shell::Round cellsOfNumber()
{
    return {.inRandomOrder = settings.QuestionOrder == RandomInSmallLetters,
            .first = 1,
            .last = CellCount,
            .following = cellAfter,
            .canBeAsked = hasForm};
}

void ask(int cell)
{
    pronounDrill.CurrentCell = static_cast<std::int16_t>(cell);
}

// Asks the next box of this number; false when all have been asked.
bool askNextCell()
{
    const auto next = shell::questionAfter(pronounDrill.CurrentCell, cellsOfNumber(), pronounDrill.CellDone);
    if (next)
        ask(*next);
    return next.has_value();
}

void beginNumber(Case firstCase)
{
    pronounDrill.FirstCase = static_cast<std::int16_t>(firstCase);
    pronounDrill.CellDone.fill(platform::FlagFalse);
    const shell::Round cells = cellsOfNumber();
    ask(cells.inRandomOrder ? shell::drawQuestionLeft(cells, pronounDrill.CellDone).value()
                            : firstWithFormFrom(cells.first));
}

} // namespace

void BuildPronounForms()
{
    for (int column = 0; column < PronounColumnCount; ++column)
        for (int inCase = NominativeSingular; inCase <= CaseCount; ++inCase) {
            std::string& built = pronounDrill.PronounForms[column + 1][inCase];
            built.clear();
            shell::appendMarked(built, pronounForm(column / ColumnsOfGroup, column % ColumnsOfGroup, inCase),
                                settings.VowelMark);
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
    const int column = pronounDrill.Group * ColumnsOfGroup + columnOf(cell) + 1;
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

bool answersAnotherCell(const std::string& answer)
{
    for (int cell = 1; cell <= CellCount; ++cell)
        if (hasForm(cell) && isOfWordAsked(cell) && answer == pronounFormAt(cell))
            return true;
    return false;
}

shell::Place placeOfCell()
{
    return shell::placeInRound(pronounDrill.CurrentCell, cellsOfNumber(), pronounDrill.CellDone);
}

PronounAdvance advancePronouns()
{
    if (askNextCell())
        return PronounAdvance::NextCell;
    beginNumber(pronounDrill.FirstCase == NominativeSingular ? NominativePlural : NominativeSingular);
    return PronounAdvance::NextNumber;
}

} // namespace nouns
