#include "platform/fault.h"

#include <system_error>

namespace platform {

std::string Fault::message() const
{
    const std::string place = line > 0 ? ", line " + std::to_string(line) : "";
    return file + place + ": " + reason;
}

std::string systemReason(int errorNumber)
{
    return std::generic_category().message(errorNumber);
}

} // namespace platform
