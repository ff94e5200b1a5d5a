#pragma once

#include "nouns/pronoun_forms.h"

#include <array>
#include <string_view>

namespace nouns {

/// The three columns of a group of pronouns, in every language of the interface.
using ColumnTexts = std::array<std::string_view, ColumnsOfGroup>;

// clang-format off
inline constexpr ColumnTexts SingularPersons = {"1 Pers. Sing.", "2 Pers. Sing.", "3 Pers. Sing."};
inline constexpr ColumnTexts PluralPersons   = {"1 Pers. Plur.", "2 Pers. Plur.", "3 Pers. Plur."};
inline constexpr ColumnTexts SingularGenders = {"Masc. Sing.",   "Fem. Sing.",    "Neut. Sing."};
inline constexpr ColumnTexts PluralGenders   = {"Masc. Plur.",   "Fem. Plur.",    "Neut. Plur."};
// clang-format on

/// The group whose columns are persons; those of the others are genders.
inline constexpr int PersonalGroup = 0;

/// Whether the columns of a group, 0 to 4, are the forms of one word: genders are, persons are three words.
constexpr bool columnsAreOneWord(int group)
{
    return group != PersonalGroup;
}

/// The columns of a group, 0 to 4, in the number to which a case, 1 to 10, belongs.
constexpr const ColumnTexts& columnTexts(int group, int inCase)
{
    if (group == PersonalGroup)
        return inCase < NominativePlural ? SingularPersons : PluralPersons;
    return inCase < NominativePlural ? SingularGenders : PluralGenders;
}

} // namespace nouns
