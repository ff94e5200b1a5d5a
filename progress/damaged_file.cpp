#include "progress/damaged_file.h"

#include "progress/calendar.h"

#include <array>
#include <string>
#include <system_error>

namespace progress {

namespace {

namespace fs = std::filesystem;

fs::path withSuffix(fs::path file, const std::string& suffix)
{
    file += suffix;
    return file;
}

std::string compactTime(platform::Moment moment)
{
    std::string time = isoTime(moment).substr(0, LengthOfLocalTime);
    std::erase(time, '-');
    std::erase(time, ':');
    return time;
}

} // namespace

bool setAside(const fs::path& file, platform::Moment moment)
{
    std::error_code error;
    fs::path aside = withSuffix(file, ".damaged-" + compactTime(moment));
    while (fs::exists(aside, error)) {
        ++moment.secondsSinceEpoch;
        aside = withSuffix(file, ".damaged-" + compactTime(moment));
    }
    fs::rename(file, aside, error);
    if (error)
        return false;
    for (const char* const companion : {"-wal", "-shm"})
        fs::rename(withSuffix(file, companion), withSuffix(aside, companion), error);
    return true;
}

} // namespace progress
