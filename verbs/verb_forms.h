#pragma once

#include "shell/form_parts.h"
#include "verbs/ending_rows.h"
#include "verbs/paradigm.h"

#include <array>
#include <span>
#include <string_view>

namespace verbs {

/// How the verbs of a class are conjugated, all with ":" after long vowels.
struct ClassPage {
    VerbClass verbClass;

    /// The infinitive's ending; of an irregular verb the whole of it.
    std::string_view infinitive;

    /// The stems of the irregular verb; a class of many verbs has none of its own.
    VerbStems stems;

    /// The present system, the perfect system, and the compounds that the first of them lacks.
    std::array<std::span<const EndingRow>, 3> rows;
};

/// The page of a class, 1 to 8.
const ClassPage& pageOf(int verbClass);

/// The stem of a row.
std::string_view stemFor(Stem stem, const VerbStems& stems);

/// A form of a row: none where the row has no ending.
constexpr shell::FormParts partsOf(std::string_view stem, std::string_view ending)
{
    return ending.empty() ? shell::FormParts() : shell::FormParts{stem, ending};
}

/// Whether the singular of a verb's imperative is its bare present stem.
bool hasBareImperative(int verbClass, std::string_view presentStem);

/// The forms of a verb by their number minus one. The imperative takes its ending whatever the stem.
using FormsOfVerb = std::array<shell::FormParts, FormCount>;
FormsOfVerb conjugate(int verbClass, const VerbStems& stems);

} // namespace verbs
