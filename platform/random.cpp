#include "platform/random.h"

#include "platform/platform.h"

#include <bit>
#include <random>

namespace platform {

namespace {

// Knuth's 64-bit generator: a state of one word, so that the many seedings cost nothing.
using Generator =
    std::linear_congruential_engine<std::uint64_t, 6364136223846793005U, 1442695040888963407U, 0U>;

Generator generator;

constexpr int FractionBits = 53;

bool someFits(int count, const std::function<bool(int)>& fits)
{
    for (int number = 0; number < count; ++number)
        if (fits(number))
            return true;
    return false;
}

} // namespace

void seedFromClock()
{
    const auto reading = std::uint64_t{std::bit_cast<std::uint32_t>(current().secondsSinceMidnight())};
    generator.seed(generator() ^ reading << 32U);
}

void seedWith(std::uint64_t number)
{
    generator.seed(number);
    generator.discard(2);
}

double randomFraction()
{
    return static_cast<double>(generator() >> (64 - FractionBits)) /
           static_cast<double>(std::uint64_t{1} << FractionBits);
}

int draw(int count)
{
    return static_cast<int>(randomFraction() * count);
}

std::optional<int> drawFitting(int count, const std::function<bool(int)>& fits)
{
    if (!someFits(count, fits))
        return {};
    int drawn = draw(count);
    while (!fits(drawn))
        drawn = draw(count);
    return drawn;
}

} // namespace platform
