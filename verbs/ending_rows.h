#pragma once

#include "verbs/paradigm.h"

#include <array>
#include <span>
#include <string_view>

namespace verbs {

/// The stem to which a row's endings are joined; `None` where the row gives whole forms.
enum class Stem { None, Present, Perfect, Supine };

/// One line of a grammar's page: a tense, its stem, and the endings of the six persons. A colon follows a
/// long vowel. An empty ending: there is no such form.
struct EndingRow {
    TenseBlock block;
    Stem stem;
    std::array<std::string_view, PersonCount> endings;
};

/// The stems of one verb, as the forms are to show them.
struct VerbStems {
    std::string_view present;
    std::string_view perfect;
    std::string_view supine;
};

/// Writes the forms of these rows into the class's column of `verbTables.Forms`, with `VowelMark` in place of
/// every colon of an ending.
void buildForms(VerbClass verbClass, const VerbStems& stems, std::span<const EndingRow> rows);

/// Draws a verb of the class from `verbList`, 1 to its count; 1 where it has none.
int drawVerb(VerbClass verbClass);

/// What every regular class takes over from the verb drawn, in `verbTables`: the working stems, the four
/// translations, and the infinitive: the present stem with this ending.
void takeVerb(VerbClass verbClass, int number, std::string_view infinitiveEnding);

/// Copies the verb's extra translation where the language is German.
void takeGermanGloss(VerbClass verbClass, int number);

/// The stems of a verb of `verbList`.
VerbStems stemsOf(VerbClass verbClass, int number);

/// Goes back to the present indicative, unless a single tense is drilled.
void resetTense();

} // namespace verbs
