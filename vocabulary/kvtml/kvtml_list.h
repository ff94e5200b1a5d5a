#pragma once

#include "vocabulary/vocabulary_file.h"

#include <string_view>

namespace vocabulary {

/// Reads KVTML. The languages of a text stand in the order of their ids, whatever the lowest is: the first
/// has the words, the second the translations, a third the hints. An entry that lacks the first or second is
/// passed over. Where it lacks a third, the comment on the word is the hint, unless it is the translation.
KvtmlList readKvtml(std::string_view text);

} // namespace vocabulary
