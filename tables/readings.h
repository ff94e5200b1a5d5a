#pragma once

#include "tables/words.h"

#include <string>

namespace tables {

/// One thing that a form can be: the cell of a word's table, and the marked form in it.
struct Reading {
    Word word;
    int cell;
    Form form;

    bool operator==(const Reading&) const = default;
};

/// What stands in a cell, in words and in the language of the interface: for verbs those of the verb quiz,
/// for nouns "singular Genitive", for pronouns "Masc. Sing. Genitive".
std::string cellInWords(const Word& word, int cell);

/// The three parts of a reading, the first two with their marks as they are shown. The word must still be
/// listed.
struct ReadingTexts {
    std::string form;
    std::string word;
    std::string grammar;
};
ReadingTexts textsOf(const Reading& reading);

/// The whole of it: "amet: amare, 3rd Person Sing, First Conjugation, Present Subjunctive".
std::string inWords(const ReadingTexts& texts);

} // namespace tables
