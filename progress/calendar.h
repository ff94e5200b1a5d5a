#pragma once

#include "platform/moment.h"
#include "progress/store.h"

#include <string>
#include <vector>

namespace progress {

/// Days that the calendar of practice shows: a year up to today.
inline constexpr int DaysShown = 365;

/// How much of `isoTime` is the local time, without the offset.
inline constexpr std::size_t LengthOfLocalTime = 19;

/// Local time and its offset: "2024-10-04T12:00:00+02:00".
std::string isoTime(const platform::Moment& moment);

/// Each day of the year that ends with `today`, those without an answer too.
std::vector<DayOfPractice> yearOfPractice(Store& store, Day today);

} // namespace progress
