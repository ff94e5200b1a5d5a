#include "shell/feedback.h"

#include "shell/drill.h"
#include "shell/pause.h"
#include "shell/score.h"
#include "shell/sound.h"

namespace shell {

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
