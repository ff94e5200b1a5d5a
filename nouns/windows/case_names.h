#pragma once

#include <array>

namespace nouns {

/// The names of the cases, from the nominative to the ablative, as windows label their rows.
inline constexpr std::array CaseNames = {"Nominative", "Genitive", "Dative", "Accusative", "Ablative"};

} // namespace nouns
