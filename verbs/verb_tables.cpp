#include "verbs/verb_tables.h"

namespace verbs {

VerbTables verbTables;
CurrentParadigm currentParadigm;

} // namespace verbs
