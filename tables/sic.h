#pragma once

#include "shell/form_parts.h"
#include "tables/words.h"

#include <optional>
#include <string>

namespace tables {

/// The form that a grammar has in a cell of a word's table, marked, where it is another than the one that is
/// drilled there; none where they agree, and where nothing is drilled. The genders that a compound form names
/// are not compared.
std::optional<std::string> grammarsForm(const Word& word, int cell, const shell::FormParts& drilled);

} // namespace tables
