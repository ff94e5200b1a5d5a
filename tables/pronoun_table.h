#pragma once

#include "nouns/pronoun_forms.h"
#include "shell/form_parts.h"

#include <array>
#include <string>

namespace tables {

inline constexpr int PronounCellCount = nouns::ColumnsOfGroup * nouns::CaseCount;

/// The number, 1 to 30, of a pronoun's form: column 0 to 2, case 1 to 10.
constexpr int pronounCell(int column, int inCase)
{
    return column * nouns::CaseCount + inCase;
}

/// The forms of a group of pronouns, 0 to 4, by their number minus one; all marked and without an ending.
/// The reflexive has no nominative.
using FormsOfPronouns = std::array<shell::FormParts, PronounCellCount>;
FormsOfPronouns formsOfPronouns(int group);

/// The name of a column, 0 to 2, of a group in the number of a case, 1 to 10, in the language of the
/// interface: "Masc. Sing.".
std::string columnOfPronouns(int group, int column, int inCase);

} // namespace tables
