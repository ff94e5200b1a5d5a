#pragma once

#include <chrono>
#include <cstdint>

namespace platform {

/// A moment by the wall clock, and how far local time stood from UTC just then.
struct Moment {
    std::int64_t secondsSinceEpoch = 0;
    std::int32_t secondsEastOfUtc = 0;

    bool operator==(const Moment&) const = default;
};

/// The seconds since 1 January 1970, 0:00, that a calendar and a clock on the wall would show.
constexpr std::int64_t localSeconds(const Moment& moment)
{
    return moment.secondsSinceEpoch + moment.secondsEastOfUtc;
}

/// The calendar day in local time: days since 1 January 1970.
constexpr std::int64_t localDay(const Moment& moment)
{
    return std::chrono::floor<std::chrono::days>(std::chrono::seconds(localSeconds(moment))).count();
}

} // namespace platform
