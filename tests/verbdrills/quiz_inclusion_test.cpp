#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/quiz_inclusion.h"

#include <initializer_list>

namespace {

using verbdrills::QuizTicks;

using QuizInclusion = tests::FreshState;

QuizTicks ticks(std::initializer_list<int> classes, std::initializer_list<int> tenses)
{
    QuizTicks made;
    for (const int row : classes)
        made.classes[row] = true;
    for (const int row : tenses)
        made.tenses[row] = true;
    return made;
}

struct Choice {
    const char* name;
    std::initializer_list<int> classes;
    std::initializer_list<int> tenses;
    std::initializer_list<int> includedClasses;
    std::initializer_list<int> includedTenses;
};

TEST_F(QuizInclusion, TakesAChoiceAndFillsUpTooSmallOnes)
{
    const Choice choices[] = {
        {"nothing", {}, {}, {0}, {0}},
        {"the imperfect alone", {2}, {1}, {2}, {0, 1}},
        {"the present alone", {2}, {0}, {2}, {0}},
        {"the last tense alone", {2}, {20}, {2}, {0, 20}},
        {"two tenses", {2}, {1, 20}, {2}, {1, 20}},
        {"velle alone", {6}, {3, 4}, {6}, {3, 4}},
        {"no class", {}, {3, 4}, {0}, {3, 4}},
        {"ferre alone, no tense", {7}, {}, {7}, {0}},
    };
    for (const Choice& choice : choices) {
        verbdrills::takeTicks(ticks(choice.classes, choice.tenses));
        EXPECT_EQ(verbdrills::ticksOfQuiz(), ticks(choice.includedClasses, choice.includedTenses))
            << choice.name;
    }
}

TEST_F(QuizInclusion, StoresFlagsAsTheyAreTickedWithoutAMinimum)
{
    verbdrills::storeTicks(ticks({5}, {7}));
    EXPECT_EQ(shell::settings.QuizConjInclude[5], -1);
    EXPECT_EQ(shell::settings.QuizConjInclude[0], 0);
    EXPECT_EQ(shell::settings.QuizTenseInclude[7], -1);
    EXPECT_EQ(shell::settings.QuizTenseInclude[0], 0);
    EXPECT_EQ(verbdrills::QuizIncludeSet, 0);
    verbdrills::storeTicks(verbdrills::noTick());
    EXPECT_EQ(verbdrills::ticksOfQuiz(), ticks({}, {}));
}

TEST_F(QuizInclusion, TakingAChoiceIsRemembered)
{
    verbdrills::takeTicks(verbdrills::everyTick());
    EXPECT_EQ(verbdrills::QuizIncludeSet, -1);
    EXPECT_EQ(shell::settings.QuizConjInclude[7], -1);
    EXPECT_EQ(shell::settings.QuizTenseInclude[20], -1);
    shell::settings.QuizConjInclude.fill(1);
    shell::settings.QuizTenseInclude.fill(1);
    EXPECT_EQ(verbdrills::ticksOfQuiz(), ticks({}, {})) << "only exactly true flags are ticked";
}

} // namespace
