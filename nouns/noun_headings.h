#pragma once

#include "nouns/noun_paradigm.h"
#include "shell/language_texts.h"

#include <array>

namespace nouns {

/// The name of a declension. A language without a text leaves the heading as it was.
struct DeclensionName {
    NounParadigm paradigm;
    shell::LanguageTexts texts;
};

// German has no heading for the second declension in -us: it writes that of the first once more, which
// stands already.
// clang-format off
inline constexpr std::array<DeclensionName, ParadigmCount> DeclensionNames = {{
    //                         English                French                    Italian                German             Spanish                 Latin
    {FirstDeclension,        {"First Declension:",  "Première Déclenaison:", "First Declension:",  "1. Deklination:", "Primera declinación:", "Prima Declinatio:"}}, // sic: Déclenaison
    {SecondDeclensionUs,     {"Second Declension:", "Second Declension:",    "Second Declension:", {},                "Segunda declinación:", "Secunda Declinatio:"}},
    {SecondDeclensionEr,     {"Second Declension:", "Second Declension:",    "Second Declension:", "2. Deklination:", "Segunda declinación:", "Secunda Declinatio:"}},
    {SecondDeclensionNeuter, {"Second Declension:", "Second Declension:",    "Second Declension:", "2. Deklination:", "Segunda declinación:", "Secunda Declinatio:"}},
    {FourthDeclension,       {"Fourth Declension:", "Fourth Declension:",    "Fourth Declension:", "4. Deklination:", "Cuarta declinación:",  "Quarta Declinatio:"}},
    {FourthDeclensionNeuter, {"Fourth Declension:", "Fourth Declension:",    "Fourth Declension:", "4. Deklination:", "Cuarta declinación:",  "Quarta Declinatio:"}},
    {FifthDeclension,        {"Fifth Declension:",  "Fifth Declension:",     "Fifth Declension:",  "5. Deklination:", "Quinta declinación:",  "Quinta Declinatio:"}},
    {ThirdDeclension,        {"Third Declension:",  "Third Declension:",     "Third Declension:",  "3. Deklination:", "Tercera declinación:", "Tertia Declinatio:"}},
    {ThirdDeclensionNeuter,  {"Third Declension:",  "Third Declension:",     "Third Declension:",  "3. Deklination:", "Tercera declinación:", "Tertia Declinatio:"}},
}};

static_assert(standInOrder(DeclensionNames));

//                                                                             English, French, Italian        German                                Spanish                               Latin
inline constexpr shell::LanguageTexts MixedDeclension = shell::englishToo("Third Declension (mixed):",  "3. Deklination (Mischdeklination):", "Tercera Declinación (mixta):",       "Tertia Declinatio (mixta):"); // sic: Declinación
inline constexpr shell::LanguageTexts IStemDeclension = shell::englishToo("Third Declension (i-stem):", "3. Deklination (i-Stamm):",          "Tercera declinación (temas en -i):", "Tertia Declinatio (i-radix):");

// Every learner reads this heading over the neuter i-stems, in place of the language's own.
inline constexpr std::string_view NeuterIStemDeclension = "Third Declension (i-stem):"; // sic
// clang-format on

} // namespace nouns
