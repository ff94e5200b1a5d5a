#pragma once

#include "progress/store.h"

namespace progress {

/// Sums up what is not summed up yet: the rows since the last one that was, whoever wrote them, or all of
/// them where the sums are missing or know more rows than there are.
Trouble bringUpToDate(Store& store);

/// Keeps a row and sums it up, both or neither.
Trouble keepRow(Store& store, const Row& row);

} // namespace progress
