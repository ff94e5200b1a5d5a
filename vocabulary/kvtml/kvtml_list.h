#pragma once

#include "vocabulary/vocabulary_file.h"

#include <string_view>

namespace vocabulary {

/// Reads KVTML: of each entry the text of its first language, which is the word, and of its second, the
/// translation. An entry that lacks one of them is passed over. The comment on the word is the hint, unless
/// it is the translation itself.
KvtmlList readKvtml(std::string_view text);

} // namespace vocabulary
