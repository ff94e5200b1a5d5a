#include "shell/looks.h"

#include <algorithm>
#include <iterator>

namespace shell {

int largerTextSize()
{
    const auto* const larger = std::ranges::upper_bound(TextSizes, looks.TextSize);
    return larger == TextSizes.end() ? looks.TextSize : *larger;
}

int smallerTextSize()
{
    const auto* const own = std::ranges::lower_bound(TextSizes, looks.TextSize);
    return own == TextSizes.begin() ? looks.TextSize : *std::prev(own);
}

} // namespace shell
