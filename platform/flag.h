#pragma once

#include <cstdint>

namespace platform {

/// A sixteen-bit truth value as the settings file stores it. It is compared with exactly these two values:
/// any other number is neither true nor false.
using Flag = std::int16_t;

inline constexpr Flag FlagTrue = -1;
inline constexpr Flag FlagFalse = 0;

constexpr Flag flagOf(bool value)
{
    return value ? FlagTrue : FlagFalse;
}

} // namespace platform
