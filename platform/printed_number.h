#pragma once

#include <string>

namespace platform {

/// A whole number in its print form: a leading blank in place of the sign where it is not negative.
std::string printedNumber(long number);

/// A count of tenths as a decimal number in print form, without a superfluous zero: 2 is " 0.2", 20 is " 2".
std::string printedTenths(long tenths);

} // namespace platform
