#pragma once

#include <array>
#include <cstdint>

namespace progress {

/// A calendar day in local time: days since 1 January 1970.
using Day = std::int64_t;

/// After how many days what lies in a box is asked again, from the first box to the sixth.
inline constexpr std::array<Day, 6> DaysUntilDue = {0, 1, 3, 7, 14, 30};

inline constexpr int FirstBox = 1;
inline constexpr int LastBox = static_cast<int>(DaysUntilDue.size());

/// The box in which a form lies after an answer: one further up, or back in the first. A form that was never
/// asked comes from the first.
constexpr int boxAfter(int box, bool right)
{
    if (!right)
        return FirstBox;
    return box < LastBox ? box + 1 : LastBox;
}

/// The day on which a form is due that was put into a box, 1 to 6, on this day.
constexpr Day dueAfter(int box, Day day)
{
    return day + DaysUntilDue.at(static_cast<std::size_t>(box - FirstBox));
}

} // namespace progress
