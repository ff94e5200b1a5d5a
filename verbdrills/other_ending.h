#pragma once

#include "shell/language_texts.h"
#include "verbs/paradigm.h"

#include <array>
#include <optional>

namespace verbdrills {

/// Which persons of a tense have a form, in their order.
using Persons = std::array<bool, verbs::PersonCount>;

/// What a wrong answer to the question for a person, 1 to 6, is where these persons have it: the ending of
/// the same person in the other number, or of another person. None where no person has it, or the one that is
/// asked.
std::optional<shell::LanguageTexts> otherEndingOf(int asked, const Persons& answered);

} // namespace verbdrills
