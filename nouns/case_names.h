#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/language_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace nouns {

/// The names of the cases, from the nominative to the ablative, as the drills have them in every language.
inline constexpr std::array<std::string_view, CasesOfNumber> CaseNames = {"Nominative", "Genitive", "Dative",
                                                                          "Accusative", "Ablative"};

/// The numbers as the noun quiz names them in every language.
inline constexpr std::string_view SingularName = "singular"; // sic: a small letter
inline constexpr std::string_view PluralName = "Plural";

// clang-format off
/// The numbers as the declension drill names them.
//                                                   English     French       Italian     German      Spanish     Latin
inline constexpr shell::LanguageTexts SingularTexts{"Singular", "Singulier", "Singular", "Einzahl",  "Singular", "numerus singularis"};
inline constexpr shell::LanguageTexts PluralTexts  {"Plural",   "Pluriel",   "Plural",   "Mehrzahl", "Plural",   "numerus pluralis"};

/// The same cases and numbers, and the genders, where they stand in the language of the interface.
inline constexpr std::array<shell::LanguageTexts, CasesOfNumber> CaseTexts = {{
    //English       French        Italian       German       Spanish       Latin
    {"Nominative", "Nominatif",  "Nominativo", "Nominativ", "Nominativo", "Nominativus"},
    {"Genitive",   "Génitif",    "Genitivo",   "Genitiv",   "Genitivo",   "Genetivus"},
    {"Dative",     "Datif",      "Dativo",     "Dativ",     "Dativo",     "Dativus"},
    {"Accusative", "Accusatif",  "Accusativo", "Akkusativ", "Acusativo",  "Accusativus"},
    {"Ablative",   "Ablatif",    "Ablativo",   "Ablativ",   "Ablativo",   "Ablativus"},
}};

inline constexpr shell::LanguageTexts SingularOfCase{SingularName, "singulier", "singolare", "Einzahl",  "singular", "singularis"};
inline constexpr shell::LanguageTexts PluralOfCase  {PluralName,   "pluriel",   "plurale",   "Mehrzahl", "plural",   "pluralis"};

inline constexpr std::array GenderTexts = {
    shell::LanguageTexts{"Masc.", "Masc.",  "Masc.",  "Mask.",  "Masc.", "Masc."},
    shell::LanguageTexts{"Fem.",  "Fém.",   "Femm.",  "Fem.",   "Fem.",  "Fem."},
    shell::LanguageTexts{"Neut.", "Neutre", "Neutro", "Neutr.", "Neut.", "Neutr."},
};

static_assert(std::ranges::equal(CaseTexts, CaseNames, {}, &shell::LanguageTexts::english));

/// What a wrong answer is that the word has elsewhere.
inline constexpr shell::LanguageTexts OtherForm{"This is another form of the same word.", "C'est une autre forme du même mot.", "È un'altra forma della stessa parola.", "Das ist eine andere Form desselben Wortes.", "Es otra forma de la misma palabra.", "Haec est alia forma eiusdem verbi."};

/// What it is where it has the stem of a neuter as well.
inline constexpr shell::LanguageTexts EndingAlone{"Only the ending is asked here.", "On ne demande ici que la terminaison.", "Qui si chiede solo la desinenza.", "Hier wird nur die Endung gefragt.", "Aquí solo se pide la terminación.", "Hic sola desinentia quaeritur."};
// clang-format on

} // namespace nouns
