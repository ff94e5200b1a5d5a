#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/language_texts.h"

#include <array>
#include <string_view>

namespace nouns {

/// The names of the cases, from the nominative to the ablative, in every language of the interface.
inline constexpr std::array<std::string_view, CasesOfNumber> CaseNames = {"Nominative", "Genitive", "Dative",
                                                                          "Accusative", "Ablative"};

/// The numbers as the noun quiz names them.
inline constexpr std::string_view SingularName = "singular"; // sic: a small letter
inline constexpr std::string_view PluralName = "Plural";

// clang-format off
/// The numbers as the declension drill names them.
//                                                   English     French       Italian     German      Spanish     Latin
inline constexpr shell::LanguageTexts SingularTexts{"Singular", "Singulier", "Singular", "Einzahl",  "Singular", "numerus singularis"};
inline constexpr shell::LanguageTexts PluralTexts  {"Plural",   "Pluriel",   "Plural",   "Mehrzahl", "Plural",   "numerus pluralis"};

/// What a wrong answer is that the word has elsewhere.
inline constexpr shell::LanguageTexts OtherForm{"This is another form of the same word.", "C'est une autre forme du même mot.", "È un'altra forma della stessa parola.", "Das ist eine andere Form desselben Wortes.", "Es otra forma de la misma palabra.", "Haec est alia forma eiusdem verbi."};
// clang-format on

} // namespace nouns
