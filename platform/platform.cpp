#include "platform/platform.h"

#include <stdexcept>

namespace platform {

namespace {
Platform* inUse = nullptr;
}

Platform& current()
{
    if (inUse == nullptr)
        throw std::logic_error("no platform is in use");
    return *inUse;
}

void use(Platform& platform)
{
    inUse = &platform;
}

} // namespace platform
