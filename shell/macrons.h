#pragma once

#include <string>
#include <string_view>

namespace shell {

/// A text with ":" behind each long vowel in place of its macron, be it one letter with its vowel or a
/// combining macron behind it. What has ":" already stays. Texts are UTF-8.
std::string marksForMacrons(std::string_view text);

/// A text with a macron over each vowel that ":" stands behind. Any other ":" stays.
std::string macronsForMarks(std::string_view text);

/// The same where the learner wishes macrons; else the text with its marks.
std::string macronsWhereShown(std::string_view text);

} // namespace shell
