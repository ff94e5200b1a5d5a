#pragma once

#include "nouns/noun_paradigm.h"

#include <array>
#include <string_view>

namespace nouns {

/// The names of the cases, from the nominative to the ablative, in every language of the interface.
inline constexpr std::array<std::string_view, CasesOfNumber> CaseNames = {"Nominative", "Genitive", "Dative",
                                                                          "Accusative", "Ablative"};

/// The numbers as the noun quiz names them.
inline constexpr std::string_view SingularName = "singular"; // sic: a small letter
inline constexpr std::string_view PluralName = "Plural";

} // namespace nouns
