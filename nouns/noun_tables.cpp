#include "nouns/noun_tables.h"

namespace nouns {

NounTables nounTables;

} // namespace nouns
