#include "tests/support/fresh_state.h"
#include "verbdrills/quiz_inclusion.h"

#include <vector>

namespace {

using QuizInclusion = tests::FreshState;
using Rows = std::vector<int>;

verbdrills::QuizTicks ticks(const Rows& classes, const Rows& tenses)
{
    verbdrills::QuizTicks made;
    for (const int row : classes)
        made.classes[row] = true;
    for (const int row : tenses)
        made.tenses[row] = true;
    return made;
}

struct Choice {
    Rows classes, tenses, includedClasses, includedTenses;
};

TEST_F(QuizInclusion, FillsUpAChoiceThatIsTooSmall)
{
    const std::vector<Choice> choices = {{{}, {}, {0}, {0}},         {{}, {3, 4}, {0}, {3, 4}},
                                         {{2}, {0}, {2}, {0}},       {{2}, {1}, {2}, {0, 1}},
                                         {{2}, {20}, {2}, {0, 20}},  {{2}, {1, 20}, {2}, {1, 20}},
                                         {{6}, {3, 4}, {6}, {3, 4}}, {{7}, {}, {7}, {0}}};
    for (const auto& [classes, tenses, includedClasses, includedTenses] : choices) {
        verbdrills::takeTicks(ticks(classes, tenses));
        EXPECT_EQ(verbdrills::ticksOfQuiz(), ticks(includedClasses, includedTenses));
    }
}

} // namespace
