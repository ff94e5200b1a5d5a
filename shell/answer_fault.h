#pragma once

#include <cstddef>
#include <string_view>

namespace shell {

/// Why an answer was wrong, where it is plain.
enum class FaultKind {
    Other,
    Capital,        ///< only capitals differ
    BlankTooMany,   ///< but for blanks it is right, and it has more of them
    GendersMissing, ///< but for " -a -um" it is right, and it lacks them
    GendersTooMany, ///< likewise, and it has them, or " -ae -a"
    MarkMissing,    ///< but for the marks of long vowels it is right, and it has fewer of them
    MarkTooMany,    ///< likewise, and it has more
    MarkMoved,      ///< likewise, and it has as many
};

/// The first letter of a wrong answer that differs: where it begins, and how many bytes it has; none, at the
/// end, where the answer only stops too early.
struct AnswerFault {
    FaultKind kind;
    std::size_t start;
    std::size_t length;
};

/// Compares a wrong answer with the right one. Both are UTF-8.
AnswerFault faultOf(std::string_view answer, std::string_view right);

} // namespace shell
