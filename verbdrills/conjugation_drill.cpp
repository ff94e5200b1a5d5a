#include "verbdrills/conjugation_drill.h"

#include "platform/platform.h"
#include "platform/random.h"
#include "shell/round.h"
#include "shell/score.h"
#include "shell/settings.h"
#include "verbs/paradigm_titles.h"
#include "verbs/verb_tables.h"

namespace verbdrills {

using shell::settings;
using verbs::currentParadigm;
using verbs::verbTables;

namespace {

// A tense that is drilled alone goes through the regular classes: the irregular verbs never come.
constexpr int FirstClassAfterTense = verbs::Esse;

bool inRandomOrder()
{
    return settings.QuestionOrder == shell::question_order::Random;
}

void askPerson(int person)
{
    conjugationDrill.PersonIndex = static_cast<std::int16_t>(person);
    conjugationDrill.FormRow =
        static_cast<std::int16_t>(verbs::formNumber(currentParadigm.TenseMoodCode, person + 1) - 1);
}

// Asks the next person of the round; false when all six have been asked.
bool askNextPerson()
{
    const shell::Round round{.inRandomOrder = inRandomOrder(),
                             .first = 0,
                             .last = BoxCount - 1,
                             .following = [](int person) { return person + 1; }};
    const auto next = shell::questionAfter(conjugationDrill.PersonIndex, round, conjugationDrill.PersonDone);
    if (next)
        askPerson(*next);
    return next.has_value();
}

void endRound()
{
    conjugationDrill.PersonDone.fill(platform::FlagFalse);
    conjugationDrill.AnswerSlots.fill({});
    if (settings.SoundOn == platform::FlagTrue)
        platform::current().beep();
}

bool blockHasForms(int block)
{
    if (block > verbs::BlockCount)
        return false;
    const auto& column = verbTables.Forms[currentParadigm.ConjugationCode];
    for (int person = verbs::FirstSingular; person <= verbs::PersonCount; ++person)
        if (!column[verbs::formNumber(block, person)].empty())
            return true;
    return false;
}

Advance goToNextClass()
{
    ++currentParadigm.ConjugationCode;
    if (currentParadigm.ConjugationCode == FirstClassAfterTense) {
        conjugationDrill.PersonIndex = 0;
        return Advance::TenseFinished;
    }
    beginRound();
    return Advance::NextRound;
}

Advance goToNextTense()
{
    ++currentParadigm.TenseMoodCode;
    if (!blockHasForms(currentParadigm.TenseMoodCode))
        return Advance::ClassFinished;
    beginRound();
    return Advance::NextRound;
}

} // namespace

void beginRound()
{
    const int person = inRandomOrder() ? platform::draw(BoxCount) : 0;
    conjugationDrill.RoundStartPerson = static_cast<std::int16_t>(person);
    askPerson(person);
}

void setConjugationQuestion()
{
    const int verbClass = currentParadigm.ConjugationCode;
    conjugationDrill.CorrectForm = verbTables.Forms[verbClass][conjugationDrill.FormRow + 1];
    currentParadigm.VerbLabel = verbTables.Infinitive[verbClass];
    verbs::setParadigmTitles();
}

void buildDrillHeading()
{
    conjugationDrill.DrillHeading = verbTables.ClassTitles[currentParadigm.ConjugationCode] + ": " +
                                    verbTables.TenseTitles[currentParadigm.TenseMoodCode];
}

bool judgeConjugation(const std::string& answer)
{
    conjugationDrill.AnswerSlots[conjugationDrill.PersonIndex] = answer;
    conjugationDrill.FeedbackPending = 1;
    return answer == conjugationDrill.CorrectForm;
}

Persons personsWithForm(const std::string& answer)
{
    const auto& column = verbTables.Forms[currentParadigm.ConjugationCode];
    Persons persons{};
    for (int person = verbs::FirstSingular; person <= verbs::PersonCount; ++person)
        persons.at(static_cast<std::size_t>(person - 1)) =
            answer == column[verbs::formNumber(currentParadigm.TenseMoodCode, person)];
    return persons;
}

shell::Place placeOfTense()
{
    shell::Place place{.number = 0, .count = 0};
    for (int block = verbs::PresentIndicative; block <= verbs::BlockCount; ++block) {
        if (!blockHasForms(block))
            continue;
        ++place.count;
        if (block <= currentParadigm.TenseMoodCode)
            ++place.number;
    }
    return place;
}

shell::Place placeOfClass()
{
    return {.number = currentParadigm.ConjugationCode, .count = verbs::LastRegularClass};
}

Advance advanceAfterRightAnswer()
{
    if (askNextPerson())
        return Advance::NextPerson;
    endRound();
    return currentParadigm.SingleTenseMode == 1 ? goToNextClass() : goToNextTense();
}

void resetAfterLeaving()
{
    currentParadigm.TenseMoodCode = verbs::PresentIndicative;
    conjugationDrill = {};
    shell::resetScore();
}

} // namespace verbdrills
