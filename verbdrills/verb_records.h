#pragma once

#include "shell/answer_record.h"
#include "verbdrills/verb_question.h"

#include <string>

namespace verbdrills {

/// What there is to tell of an answer to the form that the conjugation drill asks. It stands until the drill
/// moves on.
shell::AnswerRecord recordOfConjugation(const std::string& written, bool right);

/// What there is to tell of an answer to the form that the verb quiz shows, until another one is drawn.
shell::AnswerRecord recordOfIdentification(const Identification& written, bool right);

} // namespace verbdrills
