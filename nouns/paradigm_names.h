#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/language_texts.h"

#include <array>

namespace nouns {

struct ParadigmName {
    NounParadigm paradigm;
    shell::LanguageTexts texts;
};

// clang-format off
/// Unlike the headings of the drill, each paradigm has a name of its own.
inline constexpr std::array<ParadigmName, ParadigmCount> ParadigmNames = {{
    //                         English                        French                      Italian German                       Spanish                          Latin
    {FirstDeclension,        {"First Declension",            "1re déclinaison",           {},     "1. Deklination",            "Primera declinación",           "Prima Declinatio"}},
    {SecondDeclensionUs,     {"Second Declension (-us)",     "2e déclinaison (-us)",      {},     "2. Deklination (-us)",      "Segunda declinación (-us)",     "Secunda Declinatio (-us)"}},
    {SecondDeclensionEr,     {"Second Declension (-er)",     "2e déclinaison (-er)",      {},     "2. Deklination (-er)",      "Segunda declinación (-er)",     "Secunda Declinatio (-er)"}},
    {SecondDeclensionNeuter, {"Second Declension (neuter)",  "2e déclinaison (neutre)",   {},     "2. Deklination (Neutrum)",  "Segunda declinación (neutro)",  "Secunda Declinatio (neutrum)"}},
    {FourthDeclension,       {"Fourth Declension",           "4e déclinaison",            {},     "4. Deklination",            "Cuarta declinación",            "Quarta Declinatio"}},
    {FourthDeclensionNeuter, {"Fourth Declension (neuter)",  "4e déclinaison (neutre)",   {},     "4. Deklination (Neutrum)",  "Cuarta declinación (neutro)",   "Quarta Declinatio (neutrum)"}},
    {FifthDeclension,        {"Fifth Declension",            "5e déclinaison",            {},     "5. Deklination",            "Quinta declinación",            "Quinta Declinatio"}},
    {ThirdDeclension,        {"Third Declension",            "3e déclinaison",            {},     "3. Deklination",            "Tercera declinación",           "Tertia Declinatio"}},
    {ThirdDeclensionNeuter,  {"Third Declension (neuter)",   "3e déclinaison (neutre)",   {},     "3. Deklination (Neutrum)",  "Tercera declinación (neutro)",  "Tertia Declinatio (neutrum)"}},
}};
// clang-format on

static_assert(standInOrder(ParadigmNames));

} // namespace nouns
