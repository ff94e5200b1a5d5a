#include "shell/score.h"

#include "platform/printed_number.h"
#include "shell/settings.h"

#include <cmath>
#include <limits>

namespace shell {

namespace {

std::int16_t percent(int right, int answered)
{
    const double share = static_cast<double>(right) / answered;
    return static_cast<std::int16_t>(std::nearbyint(share * 100));
}

void workOutPercent()
{
    settings.ScorePercent = percent(settings.RightCount, settings.AnsweredCount);
}

std::string inPrintForm(std::int16_t percent)
{
    return platform::printedNumber(percent) + "% ";
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
    return inPrintForm(settings.ScorePercent);
}

std::string scoreText(int right, int answered)
{
    return inPrintForm(percent(right, answered));
}

} // namespace shell
