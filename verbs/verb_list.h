#pragma once

#include "platform/table.h"
#include "verbs/paradigm.h"

#include <array>
#include <cstdint>
#include <string>

namespace verbs {

inline constexpr int MostVerbs = 15;

/// One verb as a list holds it: its stems, and its translations in the order base form, past, past
/// participle, present participle.
struct VerbRecord {
    std::string presentStem;
    std::string perfectStem;
    std::string supineStem;
    std::array<std::string, 4> translations;

    bool operator==(const VerbRecord&) const = default;
};

/// The verbs that the generators draw from, by class 1 to 5. There is one, `verbList`.
struct VerbList {
    template <typename Value>
    using ByClass = platform::Table<Value, LastRegularClass + 1>;
    using Stems = platform::Table<std::string, MostVerbs + 1>;
    using WrittenStems = platform::Table<std::array<std::string, 3>, MostVerbs + 1>;
    using Translations = platform::Table<std::string, 40>;

    ByClass<std::int16_t> Count;

    /// Verb number 1 to 15.
    ByClass<Stems> PresentStem;
    ByClass<Stems> PerfectStem;
    ByClass<Stems> SupineStem;

    /// Verb number 1 to 15: its present, perfect and supine stem as they were written, with their marks
    /// whether they are shown or not.
    ByClass<WrittenStems> StemsAsWritten;

    /// Verb number minus one.
    ByClass<Translations> BaseForm;
    ByClass<Translations> Past;
    ByClass<Translations> PastParticiple;
    ByClass<Translations> PresentParticiple;

    /// Used in German only; no file fills it.
    ByClass<Translations> German;
};

inline VerbList verbList;

/// The verb with number 1 to 15 of a class.
VerbRecord verbAt(int verbClass, int number);

/// The same with its stems as they were written.
VerbRecord verbAsWritten(int verbClass, int number);

/// Stores a verb under its number. Its stems are kept as written, and lose their marks beside that where
/// vowel length is not shown.
void storeVerb(int verbClass, int number, const VerbRecord& verb);

} // namespace verbs
