#pragma once

#include "nouns/noun_paradigm.h"

#include <array>

namespace nouns {

/// The five cases of a number in the order that `CaseOrder` says, from 0 for the nominative to 4 for the
/// ablative as the tables have them.
const std::array<int, CasesOfNumber>& casesInOrder();

/// The index that follows in that order, where the boxes 0 to 4, 5 to 9 and so on hold the five cases each.
/// After the last box of a five comes the first of the next.
int nextInCaseOrder(int index);

} // namespace nouns
