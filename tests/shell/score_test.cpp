#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

#include <tuple>

namespace {

using Score = tests::FreshState;

TEST_F(Score, RoundsThePercentageHalvesToEven)
{
    for (const auto& [right, wrong, text] : {std::tuple{1, 0, " 100% "},
                                             {0, 1, " 0% "},
                                             {3, 1, " 75% "},
                                             {2, 1, " 67% "},
                                             {1, 7, " 12% "},
                                             {3, 5, " 38% "}}) {
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
