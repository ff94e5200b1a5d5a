#pragma once

#include "shell/language_texts.h"

namespace shell {

// clang-format off
//                                              English   French    Italian   German      Spanish    Latin
inline constexpr LanguageTexts RightTexts = {"Right!", "Bon!",   "Right!", "Richtig!", "¡Bien!",  "Verum"};
// French says "Wrong!": its own "Non!" is meant never to be shown.
inline constexpr LanguageTexts WrongTexts = {"Wrong!", "Wrong!", "Wrong!", "Falsch!",  "¡Mal!",   "Falsum"};
// clang-format on

} // namespace shell
