#pragma once

#include "verbs/paradigm.h"

#include <array>
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

/// Writes the forms of a class's page into its column of `verbTables.Forms`, with `VowelMark` in place of
/// every colon of an ending. The stems stand as they are given.
void buildForms(VerbClass verbClass, const VerbStems& stems);

} // namespace verbs
