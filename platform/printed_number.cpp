#include "platform/printed_number.h"

#include <cstdlib>

namespace platform {

std::string printedNumber(long number)
{
    std::string text = std::to_string(number);
    if (number >= 0)
        text.insert(text.begin(), ' ');
    return text;
}

std::string printedTenths(long tenths)
{
    const long size = std::labs(tenths);
    std::string text(1, tenths < 0 ? '-' : ' ');
    text += std::to_string(size / 10);
    if (size % 10 != 0)
        text.append(".").append(std::to_string(size % 10));
    return text;
}

} // namespace platform
