#pragma once

#include "nouns/noun_paradigm.h"
#include "platform/table.h"

#include <array>
#include <cstdint>
#include <string>

namespace nouns {

/// Bounds of the lists. Only the third declension, masculine and feminine, keeps oblique stems.
inline constexpr int MostNouns = 20;
inline constexpr int MostObliqueStems = 10;
inline constexpr int MostNotes = 50;
inline constexpr int MeaningCount = 4;

/// One noun as a list holds it: its note (gender and genitive), the part before the nominative ending (in the
/// third declension the whole nominative), the stem of its other cases where the list keeps one, and its
/// meanings: English, German, French, Spanish.
struct NounRecord {
    std::string note;
    std::string stem;
    std::string obliqueStem;
    std::array<std::string, MeaningCount> meanings;

    bool operator==(const NounRecord&) const = default;
};

/// The nouns that the generator draws from, by paradigm 1 to 9. There is one, `nounList`.
struct NounList {
    template <typename Value>
    using ByParadigm = platform::Table<Value, ParadigmCount + 1>;
    using Texts = platform::Table<std::string, MostNotes + 1>;

    /// The count of paradigm 5 stands in no file: it is 0 until the noun manager sets it.
    ByParadigm<std::int16_t> NounCount;

    /// Noun number minus one.
    ByParadigm<platform::Table<std::string, MostNouns>> NounListStem;

    /// Noun number minus one. Filled for paradigm 8 alone: the neuters of paradigm 9 are declined without
    /// one.
    ByParadigm<platform::Table<std::string, MostObliqueStems>> NounListObliqueStem;

    /// Noun number minus one: both stems as they were written, with their marks whether they are shown or
    /// not.
    ByParadigm<platform::Table<std::string, MostNouns>> StemAsWritten;
    ByParadigm<platform::Table<std::string, MostObliqueStems>> ObliqueStemAsWritten;

    /// Noun number 1 to 50.
    ByParadigm<Texts> NounListNote;

    /// Column 1 to 4, paradigm, noun number.
    platform::Table<ByParadigm<Texts>, MeaningCount + 1> NounListMeaning;
};

inline NounList nounList;

/// How many nouns the list of a paradigm can hold.
int mostNounsOf(int paradigm);

/// The noun with number 1 to `mostNounsOf` of a paradigm.
NounRecord nounAt(int paradigm, int number);

/// The same with its stems as they were written.
NounRecord nounAsWritten(int paradigm, int number);

/// Stores a noun under its number. Its stems are kept as written, and lose their marks beside that where
/// vowel length is not shown. The oblique stem is kept in paradigm 8 alone.
void storeNoun(int paradigm, int number, const NounRecord& noun);

} // namespace nouns
