#include "nouns/noun_tables.h"

namespace nouns {

NounTables nounTables;

const std::string& nounName(int paradigm)
{
    const std::string& caption = nounTables.NounCaption[paradigm];
    return caption.empty() ? nounTables.NounForms[paradigm][1] : caption;
}

} // namespace nouns
