#include "platform/random.h"
#include "tests/support/fresh_state.h"

#include <map>

namespace {

using Random = tests::FreshState;

TEST_F(Random, DrawsEveryNumberBelowTheCountEvenlyWhenSeededBeforeEachDraw)
{
    std::map<int, int> drawn;
    for (int i = 0; i < 6000; ++i) {
        fake.clock += 0.01;
        platform::seedFromClock();
        ++drawn[platform::draw(6)];
    }
    EXPECT_EQ(drawn.size(), 6U);
    for (int number = 0; number < 6; ++number)
        EXPECT_NEAR(drawn[number], 1000, 200) << number;
}

} // namespace
