#pragma once

#include "nouns/noun_forms.h"

#include <string>
#include <string_view>

namespace tables {

/// The forms of the noun with a number in the list of its paradigm, as the drills ask them, by case minus
/// one; all marked, with the stems as they were written. Neuters of the third declension have their endings
/// alone. Nothing is drawn, and no table of the drills is touched.
nouns::FormsOfNoun formsOfNoun(int paradigm, int number);

/// The same as the drills ask them while marks are shown: stems of the list have lost theirs, but for nouns
/// that were added meanwhile.
nouns::FormsOfNoun formsInDrill(int paradigm, int number);

/// Its stem as it was written; in the third declension the whole nominative.
std::string_view writtenStem(int paradigm, int number);

/// Appends what its forms are made of.
void appendStemsOfNoun(std::string& text, int paradigm, int number);

} // namespace tables
