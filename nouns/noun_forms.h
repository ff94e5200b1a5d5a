#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/form_parts.h"

#include <array>
#include <string_view>

namespace nouns {

/// The endings of a paradigm, 1 to 9, in a case, 1 to 10: of the noun with a number of its list, and of the
/// page itself, which has no exceptions. ":" follows a long vowel.
std::string_view endingOf(int paradigm, int number, int inCase);
std::string_view endingOnPage(int paradigm, int inCase);

/// Whether a case has the oblique stem: in the third declension all but the nominative, and the neuter's
/// accusative, which stand whole in the list.
bool hasObliqueStem(int paradigm, int inCase);

/// The forms of the noun with a number of its list, by their case minus one.
using FormsOfNoun = std::array<shell::FormParts, CaseCount>;
FormsOfNoun decline(int paradigm, int number, std::string_view stem, std::string_view obliqueStem);

/// Whether an answer has its stem before the ending that alone is asked, as of all neuters of the third
/// declension: it begins as the nominative does, and ends as it is to.
bool hasStemBeforeEnding(std::string_view answer, std::string_view nominative, std::string_view ending);

} // namespace nouns
