#include "shell/drill.h"
#include "shell/feedback.h"
#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Log = std::vector<std::string>;

// A drill and a feedback window that write down what happens to them, and what is heard, in order.
class Feedback : public tests::FreshState, public shell::Drill, public shell::FeedbackSurface {
protected:
    Feedback()
    {
        shell::registerDrill("Conjugation", *this);
        shell::beginDrill("Conjugation");
        fake.whileWaiting = [this] { note("pause"); };
    }
    ~Feedback() override { shell::unregisterDrill("Conjugation"); }

    void note(const std::string& event) { fake.sounds.push_back(event); }
    void showScore(const std::string& text) override { note("score" + text); }
    void greyAnsweredBox() override { note("grey"); }
    void moveOn() override { note("move on"); }
    void focusQuestion() override { note("focus"); }
    void askAgain() override { note("ask again"); }
    void showSurface() override { note("show"); }
    void hideSurface() override { note("hide"); }
};

TEST_F(Feedback, MovesTheDrillOnAfterARightAnswerAndAsksAgainAfterAWrongOne)
{
    shell::settings.SoundOn = platform::FlagTrue;
    shell::giveRightFeedback(*this);
    EXPECT_EQ(fake.sounds,
              (Log{"show", "sound right.wav", "grey", "score 100% ", "pause", "move on", "hide", "focus"}));
    fake.sounds.clear();
    shell::giveWrongFeedback(*this);
    EXPECT_EQ(fake.sounds, (Log{"show", "sound wrong.wav", "score 50% ", "pause", "hide", "ask again"}));
}

TEST_F(Feedback, RoundsTheScoreHalvesToEvenAndLetsItStandWhereTheCountsAreFull)
{
    // clang-format off
    const std::vector<std::tuple<int, int, std::string>> scores = {
        {0, 1, " 0% "}, {3, 1, " 75% "}, {2, 1, " 67% "}, {1, 7, " 12% "}, {3, 5, " 38% "}, {40000, 1, " 100% "}};
    // clang-format on
    for (const auto& [right, wrong, text] : scores) {
        shell::resetScore();
        for (int i = 0; i < right; ++i)
            shell::scoreRightAnswer();
        for (int i = 0; i < wrong; ++i)
            shell::scoreWrongAnswer();
        EXPECT_EQ(shell::scoreText(), text);
    }
    EXPECT_EQ(shell::settings.AnsweredCount, 32767);
}

} // namespace
