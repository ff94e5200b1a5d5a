#include "verbdrills/quiz_draw.h"

#include "platform/platform.h"
#include "platform/random.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

using platform::FlagFalse;
using platform::FlagTrue;
using shell::settings;
using verbs::verbTables;

namespace {

constexpr int DrawsRemembered = 21;

// The form numbers that are drawn for a class.
struct RowRange {
    int first;
    int count;

    int pastLast() const { return first + count; }
};

// Row 0 of a regular class holds no form and is drawn again; its last row is never reached.
constexpr RowRange RegularRows{0, verbs::FormCount}; // sic
constexpr RowRange EsseRows{1, verbs::formNumber(verbs::Imperative, verbs::ThirdPlural)};
constexpr RowRange VelleRows{1, verbs::formNumber(verbs::PluperfectSubjunctive, verbs::ThirdPlural)};

RowRange rowsOf(int verbClass)
{
    if (verbClass == verbs::Esse)
        return EsseRows;
    return verbClass == verbs::Velle ? VelleRows : RegularRows;
}

bool hasForm(int verbClass, int row)
{
    return !verbTables.Forms[verbClass][row].empty();
}

bool isIncluded(int verbClass)
{
    return settings.QuizConjInclude[verbClass - 1] == FlagTrue;
}

// Row 0 belongs to no tense, and so none keeps it out.
bool tenseAllows(int verbClass, int row)
{
    if (verbClass == verbs::Velle || row == 0)
        return true;
    return settings.QuizTenseInclude[(row - 1) / verbs::PersonCount] == FlagTrue;
}

bool canBeAsked(int verbClass)
{
    if (verbClass == verbs::Ferre)
        return hasForm(verbs::Ferre, verbQuiz.QuizRow);
    const RowRange rows = rowsOf(verbClass);
    for (int row = rows.first; row < rows.pastLast(); ++row)
        if (tenseAllows(verbClass, row) && hasForm(verbClass, row))
            return true;
    return false;
}

bool isMarked(int verbClass)
{
    return verbQuiz.RecentConjugations[verbClass] == FlagTrue;
}

bool everyIncludedClassIsMarked()
{
    for (int verbClass = verbs::FirstConjugation; verbClass <= verbs::LastClass; ++verbClass)
        if (isIncluded(verbClass) && !isMarked(verbClass))
            return false;
    return true;
}

void freeClasses()
{
    if (verbQuiz.RecentCount >= DrawsRemembered) {
        verbQuiz.RecentConjugations.fill(FlagFalse);
        verbQuiz.RecentCount = 0;
    }
    if (everyIncludedClassIsMarked())
        verbQuiz.RecentConjugations.fill(FlagFalse);
}

int drawAnyClass()
{
    return platform::draw(verbs::LastClass) + 1;
}

// Some class must be included.
void drawClass()
{
    platform::seedFromClock();
    freeClasses();
    int verbClass = drawAnyClass();
    while (isMarked(verbClass) || !isIncluded(verbClass))
        verbClass = drawAnyClass();
    verbQuiz.RecentConjugations[verbClass] = FlagTrue;
    ++verbQuiz.RecentCount;
    verbQuiz.QuizConjugation = static_cast<std::int16_t>(verbClass);
}

// Ferre is asked at the row drawn before. Another class must have a row that its tenses allow.
void drawRow()
{
    const int verbClass = verbQuiz.QuizConjugation;
    if (verbClass == verbs::Ferre)
        return;
    const RowRange rows = rowsOf(verbClass);
    int row = 0;
    do {
        platform::seedFromClock();
        row = rows.first + platform::draw(rows.count);
    } while (!tenseAllows(verbClass, row));
    verbQuiz.QuizRow = static_cast<std::int16_t>(row);
}

} // namespace

bool someFormCanBeAsked()
{
    for (int verbClass = verbs::FirstConjugation; verbClass <= verbs::LastClass; ++verbClass)
        if (isIncluded(verbClass) && canBeAsked(verbClass))
            return true;
    return false;
}

// A class without a form that can be asked is given no row: so the row kept for ferre stays as good as it
// was, and some class always has a form.
bool drawForm()
{
    if (!someFormCanBeAsked())
        return false;
    bool found = false;
    while (!found) {
        drawClass();
        if (!canBeAsked(verbQuiz.QuizConjugation))
            continue;
        drawRow();
        found = hasForm(verbQuiz.QuizConjugation, verbQuiz.QuizRow);
    }
    identifyForm();
    if (!titleOfFormAsked().empty())
        verbQuiz.TenseHeading = verbTables.TenseTitles[verbs::currentParadigm.TenseMoodCode];
    return true;
}

bool askForm()
{
    const bool unmarked = settings.ShowVowelLength == FlagFalse;
    if (unmarked)
        settings.VowelMark = shell::LengthMark;
    generateParadigms();
    if (unmarked)
        settings.VowelMark.clear();

    verbQuiz.formIsAsked = drawForm();
    if (verbQuiz.formIsAsked) {
        platform::current().beep();
        platform::current().beep();
    }
    return verbQuiz.formIsAsked;
}

} // namespace verbdrills
