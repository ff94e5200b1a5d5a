#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Score = tests::FreshState;

TEST_F(Score, RoundsThePercentageHalvesToEven)
{
    struct Case {
        int right;
        int wrong;
        std::string text;
    };
    for (const auto& [right, wrong, text] : {Case{1, 0, " 100% "}, Case{0, 1, " 0% "}, Case{3, 1, " 75% "},
                                             Case{2, 1, " 67% "}, Case{1, 7, " 12% "}, Case{3, 5, " 38% "}}) {
        shell::resetScore();
        for (int i = 0; i < wrong; ++i)
            shell::scoreWrongAnswer();
        for (int i = 0; i < right; ++i)
            shell::scoreRightAnswer();
        EXPECT_EQ(shell::scoreText(), text);
    }
}

TEST_F(Score, StandsWhenTheCountsAreFull)
{
    for (int i = 0; i < 40000; ++i)
        shell::scoreRightAnswer();
    EXPECT_EQ(shell::settings.AnsweredCount, 32767);
    EXPECT_EQ(shell::scoreText(), " 100% ");
}

} // namespace
