#pragma once

#include "shell/answer_record.h"

#include <string>

namespace vocabulary {

/// What there is to tell of an answer to the word that is asked, until the test goes on to the next. It is
/// asked with its hint where that does not give the answer away.
shell::AnswerRecord recordOfWord(const std::string& written, bool right);

} // namespace vocabulary
