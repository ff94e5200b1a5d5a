#include "verbdrills/quiz_inclusion.h"

#include "shell/settings.h"

#include <algorithm>

namespace verbdrills {

using platform::FlagTrue;
using shell::settings;

namespace {

constexpr int MostClassesUnticked = 7;
constexpr int MostTensesUnticked = 19;

template <typename Boxes>
int untickedOf(const Boxes& boxes)
{
    return static_cast<int>(std::count(boxes.begin(), boxes.end(), false));
}

} // namespace

QuizTicks ticksOfQuiz()
{
    QuizTicks ticks;
    for (int i = 0; i < ticks.classes.size(); ++i)
        ticks.classes[i] = settings.QuizConjInclude[i] == FlagTrue;
    for (int t = 0; t < ticks.tenses.size(); ++t)
        ticks.tenses[t] = settings.QuizTenseInclude[t] == FlagTrue;
    return ticks;
}

QuizTicks everyTick()
{
    QuizTicks ticks;
    ticks.classes.fill(true);
    ticks.tenses.fill(true);
    return ticks;
}

QuizTicks noTick()
{
    return {};
}

void storeTicks(const QuizTicks& ticks)
{
    for (int i = 0; i < ticks.classes.size(); ++i)
        settings.QuizConjInclude[i] = platform::flagOf(ticks.classes[i]);
    for (int t = 0; t < ticks.tenses.size(); ++t)
        settings.QuizTenseInclude[t] = platform::flagOf(ticks.tenses[t]);
}

void takeTicks(const QuizTicks& ticks)
{
    storeTicks(ticks);
    if (untickedOf(ticks.classes) > MostClassesUnticked)
        settings.QuizConjInclude[verbs::FirstConjugation - 1] = FlagTrue;
    if (untickedOf(ticks.tenses) > MostTensesUnticked)
        settings.QuizTenseInclude[verbs::PresentIndicative - 1] = FlagTrue;
    QuizIncludeSet = FlagTrue;
}

} // namespace verbdrills
