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

/// Compares a wrong answer with the right one. Both are UTF-8.
FaultKind faultOf(std::string_view answer, std::string_view right);

/// A letter of a text: where it begins, and how many bytes it has.
struct Letter {
    std::size_t start;
    std::size_t length;
};

/// The first letter of a wrong answer that differs; an empty one, at the end, where the answer only stops too
/// early. Both are UTF-8.
Letter letterThatDiffers(std::string_view answer, std::string_view right);

} // namespace shell
