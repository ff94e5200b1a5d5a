#pragma once

#include <string_view>

namespace progress {

/// What can be wrong with the file of answers.
enum class Trouble {
    None,
    Damaged,
    OtherTables, ///< a table is missing or not as it should be; to open it anew may make it
    Newer,       ///< a newer version of the program wrote it: it is left as it is
    Locked,      ///< another program holds it
    Full,        ///< it cannot grow, or the disk fails; what it holds is whole
    Unavailable, ///< the folder or the file cannot be written, or there is no SQLite: nothing is told
};

/// The one sentence to tell the learner, in `CurrentLanguage`; empty where nothing is told.
std::string_view sentenceFor(Trouble trouble);

} // namespace progress
