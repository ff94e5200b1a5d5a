#pragma once

#include "nouns/noun_list.h"

#include <span>
#include <string>
#include <string_view>

namespace nouns {

/// A paradigm as the noun manager lists it.
struct ListedParadigm {
    NounParadigm paradigm;
    std::string_view name;
    std::string_view nominativeEnding;
};

/// The five declensions of the noun manager, 0 to 4, each with its paradigms in their order.
inline constexpr int DeclensionCount = 5;
std::span<const ListedParadigm> paradigmsOf(int declension);

/// Stands for a paradigm where none was chosen.
inline constexpr int ParadigmUnchosen = 0;

/// True for the paradigms whose nouns no list changes.
bool hasFixedNouns(int paradigm);

/// How many nouns a paradigm lists, and what the manager shows of one: number 1 and on.
int listedNounCount(int paradigm);
NounRecord listedNoun(int paradigm, int number);
std::string listedNominative(const ListedParadigm& paradigm, int number);

/// The fourth declension in -us has no count in any file: the manager sets `NounCount` to its five nouns when
/// it first shows them.
void countFourthDeclension();

/// What came of adding a noun.
enum class NounEdit { Stored, NoParadigm, FixedNouns, NoStem, NoObliqueStem, ListFull };

/// Adds a noun at the end of a paradigm's list and counts it. Refused where no paradigm was chosen or
/// its nouns are fixed, the noun has no stem, the list is full, or a masculine or feminine noun of the third
/// declension has no stem of the oblique cases. The change lasts until the program ends.
NounEdit addNoun(int paradigm, const NounRecord& noun);

/// The line of the list file for a noun, with its marks whether they are shown or not; empty where the nouns
/// are fixed, or the paradigm lists none under this number.
std::string lineOfListedNoun(int paradigm, int number);

} // namespace nouns
