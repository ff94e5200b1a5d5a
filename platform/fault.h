#pragma once

#include <string>

namespace platform {

/// A failure that comes from outside the program: which file, which line (0: none in particular), and why.
struct Fault {
    std::string file;
    int line = 0;
    std::string reason;

    /// One sentence for the learner, for example: list.lst, line 3: the record is cut off
    std::string message() const;
};

/// The system's own words for its last error.
std::string systemReason(int errorNumber);

} // namespace platform
