#pragma once

#include "nouns/noun_list.h"
#include "shell/language_texts.h"

#include <span>
#include <string_view>

namespace nouns {

/// A noun that no list file changes: its stem, ":" after long vowels, and what its caption says of it: gender
/// and meaning.
struct FixedNoun {
    std::string_view stem;
    shell::LanguageTexts genderAndMeaning;
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

/// A fixed noun, number 1 and on, as a record of the noun manager: gender and meanings taken out of its
/// captions. French has no meaning of its own.
NounRecord fixedNounAt(int paradigm, int number);

} // namespace nouns
