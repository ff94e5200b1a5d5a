#include "shell/score.h"

#include "platform/printed_number.h"
#include "shell/settings.h"

#include <cmath>
#include <limits>

namespace shell {

namespace {

void workOutPercent()
{
    const double share = static_cast<double>(settings.RightCount) / settings.AnsweredCount;
    settings.ScorePercent = static_cast<std::int16_t>(std::nearbyint(share * 100));
}

bool countsAreFull()
{
    return settings.AnsweredCount == std::numeric_limits<std::int16_t>::max();
}

} // namespace

void resetScore()
{
    settings.AnsweredCount = 0;
    settings.RightCount = 0;
    settings.ScorePercent = 0;
}

void scoreRightAnswer()
{
    if (countsAreFull())
        return;
    ++settings.AnsweredCount;
    ++settings.RightCount;
    workOutPercent();
}

void scoreWrongAnswer()
{
    if (countsAreFull())
        return;
    ++settings.AnsweredCount;
    workOutPercent();
}

std::string scoreText()
{
    return platform::printedNumber(settings.ScorePercent) + "% ";
}

} // namespace shell
