#include "nouns/declension_drill.h"

#include "nouns/case_order.h"
#include "nouns/chooser_rows.h"
#include "nouns/declensions.h"
#include "nouns/noun_forms.h"
#include "nouns/noun_tables.h"
#include "platform/random.h"
#include "shell/round.h"
#include "shell/settings.h"

#include <array>

namespace nouns {

using shell::settings;

namespace {

void ask(int box)
{
    declensionDrill.CurrentCaseIndex = static_cast<std::int16_t>(box);
}

shell::Round casesOfNoun()
{
    return {.inRandomOrder = settings.QuestionOrder == shell::question_order::Random,
            .first = 0,
            .last = CaseCount - 1,
            .following = nextInCaseOrder};
}

// Asks the next box of the round; false when all ten have been asked.
bool askNextBox()
{
    const auto next =
        shell::questionAfter(declensionDrill.CurrentCaseIndex, casesOfNoun(), declensionDrill.CaseDone);
    if (next)
        ask(*next);
    return next.has_value();
}

} // namespace

void beginDeclensionChoice()
{
    if (settings.QuestionOrder == shell::question_order::Sequential)
        ask(0);
    else if (settings.QuestionOrder == shell::question_order::Random)
        ask(platform::draw(CaseCount));
    declensionDrill.Answers.fill({});
}

bool chooseDeclension(int row)
{
    if (row < 0 || row >= ParadigmCount)
        return false;
    declensionDrill.DrillParadigm =
        static_cast<std::int16_t>(OfferedParadigms.at(static_cast<std::size_t>(row)));
    return true;
}

void drawDeclension()
{
    BuildNounParadigms();
    declensionDrill.CaseDone.fill(platform::FlagFalse);
    declensionDrill.Answers.fill({});
}

const std::string& nounName(int paradigm)
{
    const std::string& caption = nounTables.NounCaption[paradigm];
    return caption.empty() ? nounTables.NounForms[paradigm][NominativeSingular] : caption;
}

void setDeclensionQuestion()
{
    declensionDrill.ExpectedAnswer =
        nounTables.NounForms[declensionDrill.DrillParadigm][declensionDrill.CurrentCaseIndex + 1];
}

void returnToQuestion()
{
    declensionDrill.AnswerGiven = platform::FlagFalse;
}

Judgement judgeDeclension(const std::string& answer)
{
    const bool judgedBefore = declensionDrill.AnswerGiven == platform::FlagTrue;
    declensionDrill.AnswerGiven = platform::FlagTrue;
    declensionDrill.Answers[declensionDrill.CurrentCaseIndex] = answer;
    if (answer == declensionDrill.ExpectedAnswer)
        return Judgement::Right;
    return judgedBefore ? Judgement::NotAgain : Judgement::Wrong;
}

bool answersAnotherCase(const std::string& answer)
{
    const auto& forms = nounTables.NounForms[declensionDrill.DrillParadigm];
    for (int number = NominativeSingular; number <= CaseCount; ++number)
        if (answer == forms[number])
            return true;
    return false;
}

bool answersWithStem(const std::string& answer)
{
    const auto& forms = nounTables.NounForms[declensionDrill.DrillParadigm];
    return declensionDrill.DrillParadigm == ThirdDeclensionNeuter &&
           hasStemBeforeEnding(answer, forms[NominativeSingular], declensionDrill.ExpectedAnswer);
}

shell::Place placeOfCase()
{
    return shell::placeInRound(declensionDrill.CurrentCaseIndex, casesOfNoun(), declensionDrill.CaseDone);
}

DeclensionAdvance advanceDeclension()
{
    if (askNextBox())
        return DeclensionAdvance::NextCase;
    drawDeclension();
    ask(0);
    return DeclensionAdvance::NextRound;
}

void leaveDeclension()
{
    declensionDrill.DrillParadigm = 0;
    ask(0);
}

} // namespace nouns
