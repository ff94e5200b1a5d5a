#include "shell/delay.h"

#include "platform/printed_number.h"
#include "shell/settings.h"

#include <cmath>

namespace shell {

int scrollAtFirst()
{
    return settings.DelaySeconds; // sic: not in tenths
}

std::string delayText(int scroll)
{
    return platform::printedTenths(scroll) + " seconds";
}

double secondsOfScroll(int scroll)
{
    return scroll / 10.0;
}

void setDelay(int scroll)
{
    settings.DelaySeconds = static_cast<std::int32_t>(std::nearbyint(secondsOfScroll(scroll)));
    countSettingsChange();
}

} // namespace shell
