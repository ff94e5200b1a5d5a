#pragma once

#include "nouns/case_names.h"
#include "shell/language_texts.h"

namespace nouns {

// clang-format off
//                                          English           French             Italian           German            Spanish          Latin
inline constexpr shell::LanguageTexts FormOf{"form %1 of %2", "forme %1 sur %2", "forma %1 di %2", "Form %1 von %2", "forma %1 de %2", "forma %1 ex %2"};
// clang-format on

} // namespace nouns
