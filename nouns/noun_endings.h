#pragma once

#include "nouns/noun_paradigm.h"

#include <array>
#include <span>
#include <string_view>

namespace nouns {

using Endings = std::array<std::string_view, CaseCount>;

struct ParadigmEndings {
    NounParadigm paradigm;
    Endings endings;
};

/// An ending that a noun has in place of its paradigm's.
struct EndingException {
    Case inCase;
    std::string_view ending;
};

/// Endings that the nouns with the numbers `first` to `last` of a list have in place of their paradigm's: the
/// order of the nouns in the list is part of the grammar.
struct ExceptionalNouns {
    NounParadigm paradigm;
    int first;
    int last;
    std::span<const EndingException> exceptions;

    constexpr bool hold(int ofParadigm, int number) const
    {
        return paradigm == ofParadigm && first <= number && number <= last;
    }
};

// clang-format off

inline constexpr std::array<ParadigmEndings, ParadigmCount> EndingTable = {{
    //                        Singular                                  Plural
    //                         nom    gen    dat    acc    abl           nom    gen      dat     acc    abl
    // puella, puellae f.
    {FirstDeclension,        {"a",   "ae",  "ae",  "am",  "a:",         "ae",  "a:rum", "i:s",  "a:s", "i:s"}},
    // hortus, horti: m.
    {SecondDeclensionUs,     {"us",  "i:",  "o:",  "um",  "o:",         "i:",  "o:rum", "i:s",  "o:s", "i:s"}},
    // ager, agri: m.
    {SecondDeclensionEr,     {"er",  "ri:", "ro:", "rum", "ro:",        "ri:", "ro:rum","ri:s", "ro:s","ri:s"}},
    // do:num, do:ni: n.
    {SecondDeclensionNeuter, {"um",  "i:",  "o:",  "um",  "o:",         "a",   "o:rum", "i:s",  "a",   "i:s"}},
    // fru:ctus, fru:ctu:s m.
    {FourthDeclension,       {"us",  "u:s", "ui:", "um",  "u:",         "u:s", "uum",   "ibus", "u:s", "ibus"}},
    // cornu:, cornu:s n.
    {FourthDeclensionNeuter, {"u:",  "u:s", "u:",  "u:",  "u:",         "ua",  "uum",   "ibus", "ua",  "ibus"}},
    // die:s, die:i: m.
    {FifthDeclension,        {"e:s", "e:i:","e:i:","em",  "e:",         "e:s", "e:rum", "e:bus","e:s", "e:bus"}},
    // re:x, re:gis m.
    {ThirdDeclension,        {"",    "is",  "i:",  "em",  "e",          "e:s", "um",    "ibus", "e:s", "ibus"}},
    // no:men, no:minis n.
    {ThirdDeclensionNeuter,  {"",    "is",  "i:",  "",    "e",          "a",   "um",    "ibus", "a",   "ibus"}},
}};

static_assert(standInOrder(EndingTable));

// dea, dea:bus, which tells goddesses from gods.
inline constexpr std::array DeaExceptions = {EndingException{DativePlural, "a:bus"},
                                             EndingException{AblativePlural, "a:bus"}};
// urbs, urbium.
inline constexpr std::array MixedExceptions = {EndingException{GenitivePlural, "ium"}};
// turris, turrim, turri:, turrium.
inline constexpr std::array IStemExceptions = {EndingException{AccusativeSingular, "im"},
                                               EndingException{AblativeSingular, "i:"},
                                               EndingException{GenitivePlural, "ium"}};
// mare, mari:, maria, marium.
inline constexpr std::array NeuterIStemExceptions = {EndingException{AblativeSingular, "i:"},
                                                     EndingException{NominativePlural, "ia"},
                                                     EndingException{GenitivePlural, "ium"},
                                                     EndingException{AccusativePlural, "ia"}};

inline constexpr ExceptionalNouns Dea          = {FirstDeclension,       8, 8, DeaExceptions};
inline constexpr ExceptionalNouns MixedNouns   = {ThirdDeclension,       6, 8, MixedExceptions};
inline constexpr ExceptionalNouns IStems       = {ThirdDeclension,       9, 9, IStemExceptions};
inline constexpr ExceptionalNouns NeuterIStems = {ThirdDeclensionNeuter, 4, 5, NeuterIStemExceptions};

// clang-format on

inline constexpr std::array ExceptionTable = {Dea, MixedNouns, IStems, NeuterIStems};

} // namespace nouns
