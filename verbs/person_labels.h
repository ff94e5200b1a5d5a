#pragma once

namespace verbs {

/// Writes the six person labels into `verbTables`: German has its own, every other language the English ones.
/// Then sets the paradigm titles, and in `currentParadigm` the tense label to the class title followed
/// directly by the tense title, and the verb label to the infinitive that was generated last.
void setPersonLabels();

} // namespace verbs
