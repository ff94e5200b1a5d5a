#pragma once

#include "shell/form_parts.h"
#include "tables/form.h"
#include "tables/words.h"

#include <optional>
#include <string>
#include <vector>

namespace tables {

/// The forms of any word by the number of their cell, minus one: a verb's by form number, 1 to 126, a noun's
/// by case, 1 to 10, those of pronouns by `pronounCell`, 1 to 30. They hold until a list changes.
std::vector<shell::FormParts> formsOf(const Word& word);

/// Appends what the forms of a word are made of: as long as that is the same, so are they.
void appendStems(std::string& text, const Word& word);

/// One cell of a word's table: its form, and the form of a grammar where that is another. Both are marked.
struct Cell {
    Form form;
    std::optional<std::string> grammarsForm;
};

/// The whole table, by the number of the cell minus one. It keeps its own texts.
std::vector<Cell> tableOf(const Word& word);

} // namespace tables
