#pragma once

#include "shell/form_parts.h"
#include "verbs/verb_forms.h"

#include <string>

namespace tables {

/// The forms of the verb with a number in the list of its class, as the drills ask them, by form number minus
/// one; all marked, with the stems as they were written. An irregular verb has no stem in its whole forms:
/// they stand in `stem`. Nothing is drawn, and no table of the drills is touched.
verbs::FormsOfVerb formsOfVerb(int verbClass, int number);

/// Its infinitive, likewise.
shell::FormParts infinitiveOf(int verbClass, int number);

/// Appends what its forms are made of.
void appendStemsOfVerb(std::string& text, int verbClass, int number);

} // namespace tables
