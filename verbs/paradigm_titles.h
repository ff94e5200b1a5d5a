#pragma once

#include "verbs/paradigm.h"

#include <array>
#include <string_view>

namespace verbs {

/// The persons, first to third singular, first to third plural, as one language names them.
using Persons = std::array<std::string_view, PersonCount>;
inline constexpr Persons GermanPersons = {"ich", "du", "er/ sie/ es", "wir", "ihr", "sie"};

/// Writes the title of the current class and all 21 tense titles into `verbTables`, in the language of the
/// interface, and what the drill's window shows of the current ones into `currentParadigm`: the window title
/// and the tense label; for esse and velle an empty window title and the verb label. An unknown language
/// leaves all titles as they were. Ferre has no class title: its entry is not written.
void setParadigmTitles();

/// Writes the six person labels into `verbTables`: German has its own, every other language the English ones.
/// Then sets the paradigm titles, and in `currentParadigm` the tense label to the class title followed
/// directly by the tense title, and the verb label to the infinitive that was generated last.
void setPersonLabels();

} // namespace verbs
