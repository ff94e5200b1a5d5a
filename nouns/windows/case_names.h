#pragma once

#include "nouns/case_names.h"
#include "shell/language_texts.h"

namespace nouns {

// clang-format off
//                                          English           French             Italian           German            Spanish          Latin
inline constexpr shell::LanguageTexts FormOf{"form %1 of %2", "forme %1 sur %2", "forma %1 di %2", "Form %1 von %2", "forma %1 de %2", "forma %1 ex %2"};
inline constexpr shell::LanguageTexts OtherCase{"This is the ending of another case.", "C'est la terminaison d'un autre cas.", "È la desinenza di un altro caso.", "Das ist die Endung eines anderen Falls.", "Es la terminación de otro caso.", "Haec est desinentia alius casus."};
// clang-format on

} // namespace nouns
