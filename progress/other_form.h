#pragma once

#include "shell/answer_record.h"
#include "shell/language_texts.h"

#include <optional>
#include <string>

namespace progress {

/// What a wrong answer to a question of a drill is, where it is right elsewhere: in
/// the other number or another person of the same tense, or in another case of the word. None where it is
/// not, or where the lists have the word no more. Reads the lists in memory and `ShowVowelLength`.
std::optional<shell::LanguageTexts> otherFormOf(const shell::AnswerRecord& question,
                                                const std::string& written);

} // namespace progress
