#include "shell/score.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"

namespace {

using Numbers = tests::FreshState;
TEST_F(Numbers, RoundTheScoreHalvesToEvenAndLetItStandWhereTheCountsAreFull)
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
