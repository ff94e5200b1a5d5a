#pragma once

#include "progress/store.h"

#include <string>

namespace progress {

/// One line of the table of answers, with its end: the local time with its offset, exercise, word, place,
/// what was asked, expected and written, and 1 where it was right, else 0. What holds a comma, a quote or a
/// line end stands in quotes (RFC 4180). Names of the grammar stand in English, whichever language they were
/// kept in.
std::string csvLine(const Row& row);

/// All answers, under a line of headings.
std::string csvOf(Store& store);

} // namespace progress
