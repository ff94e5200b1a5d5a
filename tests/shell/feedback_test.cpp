#include "shell/drill.h"
#include "shell/feedback.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <vector>

namespace {

using Log = std::vector<std::string>;

// A drill and a feedback window that write down what happens to them, in order.
class Feedback : public tests::FreshState, public shell::Drill, public shell::FeedbackSurface {
protected:
    Feedback()
    {
        shell::registerDrill("Conjugation", *this);
        shell::beginDrill("Conjugation");
        fake.whileWaiting = [this] { log.push_back("pause"); };
    }
    ~Feedback() override { shell::unregisterDrill("Conjugation"); }

    void showScore(const std::string& text) override { log.push_back("score" + text); }
    void greyAnsweredBox() override { log.push_back("grey"); }
    void moveOn() override { log.push_back("move on"); }
    void focusQuestion() override { log.push_back("focus"); }
    void askAgain() override { log.push_back("ask again"); }
    void showSurface() override { log.push_back("show"); }
    void hideSurface() override { log.push_back("hide"); }

    Log log;
};

TEST_F(Feedback, MovesTheDrillOnAfterARightAnswer)
{
    shell::giveRightFeedback(*this);
    EXPECT_EQ(log, (Log{"show", "grey", "score 100% ", "pause", "move on", "hide", "focus"}));
}

TEST_F(Feedback, AsksAgainAfterAWrongAnswer)
{
    shell::giveWrongFeedback(*this);
    EXPECT_EQ(log, (Log{"show", "score 0% ", "pause", "hide", "ask again"}));
}

TEST_F(Feedback, SoundsOnlyWithSoundOn)
{
    shell::giveRightFeedback(*this);
    EXPECT_TRUE(fake.sounds.empty());
    shell::settings.SoundOn = platform::FlagTrue;
    shell::giveRightFeedback(*this);
    shell::giveWrongFeedback(*this);
    EXPECT_EQ(fake.sounds, (Log{"sound right.wav", "sound wrong.wav"}));
}

TEST_F(Feedback, DoesNothingWithoutARunningDrill)
{
    shell::settings.ExerciseType = "Nothing";
    shell::giveRightFeedback(*this);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(shell::settings.AnsweredCount, 0);
}

} // namespace
