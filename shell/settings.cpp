#include "shell/settings.h"

#include <limits>

namespace shell {

Settings settings;

void countSettingsChange()
{
    if (settings.SettingsChangeCount < std::numeric_limits<std::int16_t>::max())
        ++settings.SettingsChangeCount;
}

} // namespace shell
