#pragma once

#include "nouns/noun_list.h"
#include "shell/language_texts.h"

#include <span>
#include <string>
#include <string_view>

namespace nouns {

/// A noun that no list file changes: its stem, ":" after long vowels, its gender and its meaning. Latin gives
/// no meaning.
struct FixedNoun {
    std::string_view stem;
    std::string_view gender;
    shell::LanguageTexts meaning;
};

/// The nouns of a paradigm, in the order of their numbers, and what the caption sets behind the stem.
struct FixedNouns {
    std::span<const FixedNoun> nouns;
    std::string_view captionEnding;

    /// How many numbers can be drawn; those past the last noun have an empty stem.
    int slots = 0;
};

/// The fixed nouns of the fourth and fifth declensions; none of another paradigm.
FixedNouns fixedNounsOf(int paradigm);

/// The gender as captions and the noun manager show it: " (m)".
std::string genderNote(const FixedNoun& noun);

/// A fixed noun, number 1 and on, as a record of the noun manager. French has no meaning of its own.
NounRecord fixedNounAt(int paradigm, int number);

} // namespace nouns
