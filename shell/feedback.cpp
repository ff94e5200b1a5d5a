#include "shell/feedback.h"

#include "platform/platform.h"
#include "shell/drill.h"
#include "shell/pause.h"
#include "shell/score.h"
#include "shell/settings.h"

#include <string>

namespace shell {

void soundIfOn(std::string_view waveFile)
{
    if (settings.SoundOn == platform::FlagTrue)
        platform::current().playSound(std::string(waveFile));
}

void giveRightFeedback(FeedbackSurface& surface)
{
    Drill* const drill = runningDrill();
    if (drill == nullptr || pausing())
        return;
    scoreRightAnswer();
    surface.showSurface();
    soundIfOn(RightSound);
    drill->greyAnsweredBox();
    drill->showScore(scoreText());
    if (!pauseWithDrill())
        return;
    const Stay stay = drillStay();
    drill->moveOn();
    surface.hideSurface();
    if (stay.lasts())
        drill->focusQuestion();
}

void giveWrongFeedback(FeedbackSurface& surface)
{
    Drill* const drill = runningDrill();
    if (drill == nullptr || pausing())
        return;
    scoreWrongAnswer();
    surface.showSurface();
    soundIfOn(WrongSound);
    drill->showScore(scoreText());
    if (!pauseWithDrill())
        return;
    surface.hideSurface();
    drill->askAgain();
}

} // namespace shell
