#pragma once

#include "tables/form.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tables {

enum class WordKind { Verb, Noun, Pronoun };

/// A word of the lists: a verb by its class, 1 to 8, a noun by its paradigm, 1 to 9, a group of pronouns by
/// its row, 0 to 4; and its number in their list, which is 1 for irregular verbs and pronouns.
struct Word {
    WordKind kind;
    int paradigm;
    int number;

    bool operator==(const Word&) const = default;
};

/// The words of a class, of a paradigm, or the irregular verbs, or the pronouns.
struct WordGroup {
    /// In the language of the interface.
    std::string title;

    std::vector<Word> words;
};

/// All words of the lists in memory, in the order in which the choosers offer their classes and paradigms:
/// the regular verbs, the irregular ones, nouns, pronouns. A class without words is left out, and so are the
/// places of a list without a stem. The nouns that no list changes are listed from the start.
std::vector<WordGroup> listedWords();

/// A verb's infinitive, a noun's nominative, the pronouns of a group: "is-ea-id".
Form nameOf(const Word& word);

/// The listed word that a drill or quiz shows: its class or paradigm, and the verb's infinitive or the noun's
/// nominative, whatever its marks. Of several the one with the same marks, or the first; none where the list
/// has it no more.
std::optional<Word> wordShownAs(WordKind kind, int paradigm, std::string_view name);

/// How a word is listed, with its marks as they are shown: a verb by its infinitive, a noun by its nominative
/// and its note, "puella (f. -ae)", pronouns by the row of their chooser, "is-ea-id (this/that
/// [person/thing])".
std::string listedName(const Word& word);

} // namespace tables
