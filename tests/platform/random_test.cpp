#include "platform/printed_number.h"
#include "platform/random.h"
#include "tests/support/fresh_state.h"

#include <map>
#include <set>

namespace {

using Random = tests::FreshState;

TEST_F(Random, DrawsEveryNumberBelowTheCountAndNoOther)
{
    std::map<int, int> drawn;
    for (int i = 0; i < 15000; ++i)
        ++drawn[platform::draw(15)];
    ASSERT_EQ(drawn.size(), 15U);
    EXPECT_EQ(drawn.begin()->first, 0);
    EXPECT_EQ(drawn.rbegin()->first, 14);
    for (const auto& [number, times] : drawn)
        EXPECT_NEAR(times, 1000, 200) << number;
    EXPECT_EQ(platform::draw(0), 0);
}

TEST_F(Random, GoesOnToNewNumbersWhenSeededTwiceWithinATick)
{
    std::set<double> seen;
    for (int i = 0; i < 1000; ++i) {
        platform::seedFromClock();
        seen.insert(platform::randomFraction());
    }
    EXPECT_EQ(seen.size(), 1000U);
}

TEST_F(Random, DrawsEvenlyWhenSeededBeforeEachDraw)
{
    std::map<int, int> drawn;
    for (int i = 0; i < 6000; ++i) {
        fake.clock += 0.01;
        platform::seedFromClock();
        ++drawn[platform::draw(6)];
    }
    for (int number = 0; number < 6; ++number)
        EXPECT_NEAR(drawn[number], 1000, 200) << number;
}

TEST(PrintedNumber, HasABlankInPlaceOfThePlusSign)
{
    EXPECT_EQ(platform::printedNumber(0), " 0");
    EXPECT_EQ(platform::printedNumber(75), " 75");
    EXPECT_EQ(platform::printedNumber(-1), "-1");
    EXPECT_EQ(platform::printedTenths(2), " 0.2");
    EXPECT_EQ(platform::printedTenths(20), " 2");
    EXPECT_EQ(platform::printedTenths(-15), "-1.5");
}

} // namespace
