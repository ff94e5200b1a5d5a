#pragma once

#include <array>
#include <string_view>

namespace nouns {

/// The names of the cases, from the nominative to the ablative, as windows label their rows.
inline constexpr std::array<std::string_view, 5> CaseNames = {"Nominative", "Genitive", "Dative",
                                                              "Accusative", "Ablative"};

} // namespace nouns
