#include "progress/calendar.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace progress {

std::string isoTime(const platform::Moment& moment)
{
    using namespace std::chrono;
    const sys_seconds local{seconds(platform::localSeconds(moment))};
    const auto midnight = floor<days>(local);
    const year_month_day date{midnight};
    const hh_mm_ss time{local - midnight};
    const int minutesEast = std::abs(moment.secondsEastOfUtc) / 60;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d%c%02d:%02d", int{date.year()},
                  unsigned{date.month()}, unsigned{date.day()}, static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()),
                  moment.secondsEastOfUtc < 0 ? '-' : '+', minutesEast / 60, minutesEast % 60);
    return text.data();
}

std::vector<DayOfPractice> yearOfPractice(Store& store, Day today)
{
    std::vector<DayOfPractice> year(DaysShown);
    const Day first = today - DaysShown + 1;
    for (std::size_t i = 0; i < year.size(); ++i)
        year[i].day = first + static_cast<Day>(i);
    for (const DayOfPractice& practised : store.daysOfPractice(first, today))
        year[static_cast<std::size_t>(practised.day - first)].share = practised.share;
    return year;
}

} // namespace progress
