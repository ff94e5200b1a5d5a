#pragma once

#include "progress/form.h"

#include <array>
#include <compare>
#include <string>

namespace progress {

/// The three pictures of what is known.
enum class Grid {
    Tenses, ///< tenses by classes: the conjugation drill and the verb quiz
    Cases,  ///< cases by paradigms: the drills of nouns and pronouns and the noun quiz
    Words,  ///< words by list: the vocabulary test
};

inline constexpr std::array Grids = {Grid::Tenses, Grid::Cases, Grid::Words};

/// Where the forms of one cell stand: its column is a class, a paradigm, a group or a list, its row a tense,
/// a case or a word.
struct CellName {
    Grid grid;
    std::string column;
    std::string row;

    auto operator<=>(const CellName&) const = default;
};

CellName cellOf(const Form& form);

/// A cell, and the share of right ones among the last answers of all its forms.
struct Cell {
    CellName name;
    Share share;
};

} // namespace progress
