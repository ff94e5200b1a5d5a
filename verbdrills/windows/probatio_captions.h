#pragma once

#include "shell/language_texts.h"

#include <span>
#include <string_view>

namespace verbdrills {

/// The captions of the verb quiz.
std::span<const shell::Caption> probatioCaptions();

/// What stands above the right answer, in the language of the interface.
std::string_view correctHeading();

} // namespace verbdrills
