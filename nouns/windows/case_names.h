#pragma once

#include "nouns/case_names.h"
#include "shell/language_texts.h"

namespace nouns {

// clang-format off
//                                          English           French             Italian           German            Spanish          Latin
inline constexpr shell::LanguageTexts FormOf{"form %1 of %2", "forme %1 sur %2", "forma %1 di %2", "Form %1 von %2", "forma %1 de %2", "forma %1 ex %2"};
inline constexpr shell::LanguageTexts OtherForm{"This is another form of the same word.", "C'est une autre forme du même mot.", "È un'altra forma della stessa parola.", "Das ist eine andere Form desselben Wortes.", "Es otra forma de la misma palabra.", "Haec est alia forma eiusdem verbi."};
// clang-format on

} // namespace nouns
