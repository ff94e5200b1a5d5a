#pragma once

#include "shell/language_texts.h"
#include "verbdrills/verb_question.h"

#include <span>
#include <string>

namespace verbdrills {

/// The title of the quiz's windows.
inline constexpr shell::LanguageTexts QuizTitle =
    shell::englishToo("Verb Quiz", "Verbenprüfung", "Prueba de verbos", "Probatio");

/// The names of the eight classes and of the 21 tenses, as the verb quiz lists them.
std::span<const shell::LanguageTexts> quizClassNames();
std::span<const shell::LanguageTexts> quizTenseNames();

/// An identification in words, in the language of the interface: person, number, class and tense. A class or
/// a tense that is not chosen is left out.
std::string describe(const Identification& identification);

} // namespace verbdrills
