#pragma once

#include "shell/answer_record.h"

#include <string>

namespace nouns {

/// What there is to tell of an answer to the form that the declension drill asks, and to that of the pronoun
/// drill. It stands until the drill moves on.
shell::AnswerRecord recordOfDeclension(const std::string& written, bool right);
shell::AnswerRecord recordOfPronoun(const std::string& written, bool right);

/// What there is to tell of the cases that are ticked in the noun quiz, until another form is drawn.
shell::AnswerRecord recordOfTicks(bool right);

} // namespace nouns
