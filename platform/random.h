#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace platform {

/// Seeds the program's one random generator from the clock. The reading is mixed into the generator's state,
/// so that seeding twice within one tick still goes on to new numbers.
void seedFromClock();

/// Starts the generator afresh with a fixed number; the same number gives the same draws.
void seedWith(std::uint64_t number);

/// A random value from 0 to below 1.
double randomFraction();

/// The integer part of a random value times `count`: 0 to `count` - 1, and 0 where `count` is 0.
int draw(int count);

/// Draws from 0 to `count` - 1 until one fits; nothing where none does.
std::optional<int> drawFitting(int count, const std::function<bool(int)>& fits);

} // namespace platform
