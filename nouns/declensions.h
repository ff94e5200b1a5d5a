#pragma once

namespace nouns {

/// Draws a noun of each of the nine paradigms and fills `nounTables` with its ten forms, its caption and the
/// heading of its paradigm.
///
/// Reads `nounList`, `CurrentLanguage` and `ShowVowelLength`. Where the latter is true it sets `VowelMark` to
/// ":"; it never empties it. The captions of the listed nouns are built in the languages alone that have the
/// English heading of a paradigm, and those of the fixed nouns in the six languages; in another language they
/// stay as they were. Draws number 1 of a paradigm without nouns.
void BuildNounParadigms();

/// Fills the tables of the third declension, masculine and feminine, for the noun with this number, 1 to 10.
/// `BuildNounParadigms` never draws the mixed nouns and the i-stem, 6 to 9.
void buildThirdDeclension(int number);

} // namespace nouns
