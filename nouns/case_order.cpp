#include "nouns/case_order.h"

#include "shell/settings.h"

#include <algorithm>

namespace nouns {

namespace {

constexpr std::array<int, CasesOfNumber> NominativeGenitiveDative = {0, 1, 2, 3, 4};
constexpr std::array<int, CasesOfNumber> NominativeAccusativeGenitive = {0, 3, 1, 2, 4};

} // namespace

const std::array<int, CasesOfNumber>& casesInOrder()
{
    return shell::settings.CaseOrder == shell::case_order::NAGDAb ? NominativeAccusativeGenitive
                                                                  : NominativeGenitiveDative;
}

int nextInCaseOrder(int index)
{
    const auto& order = casesInOrder();
    const int firstOfFive = index - index % CasesOfNumber;
    const auto* const next = std::ranges::find(order, index % CasesOfNumber) + 1;
    return next == order.end() ? firstOfFive + CasesOfNumber + order.front() : firstOfFive + *next;
}

} // namespace nouns
