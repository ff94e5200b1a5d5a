#pragma once

#include "verbs/verb_list.h"

#include <string>

namespace verbs {

/// What came of putting a verb into the list.
enum class VerbEdit { Stored, NoPresentStem, ListFull };

/// Puts a verb into a class's list under its number; the number after the last verb makes it a new one.
/// Refused where it has no present stem, or would be the sixteenth verb. The edit lasts until the program
/// ends.
VerbEdit editVerb(int verbClass, int number, const VerbRecord& verb);

/// Puts every edit into the list once more, after the list was read anew.
void repeatVerbEdits();

/// Forgets all edits.
void forgetVerbEdits();

/// How the verb manager names a verb: its present stem with the infinitive's ending without marks.
std::string listedInfinitive(int verbClass, int number);

/// The line of the list file for a verb, with its marks whether they are shown or not; empty where the class
/// lists no verb under this number.
std::string lineOfListedVerb(int verbClass, int number);

} // namespace verbs
