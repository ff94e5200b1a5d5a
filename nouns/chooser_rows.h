#pragma once

#include "nouns/noun_paradigm.h"
#include "nouns/pronoun_forms.h"
#include "shell/language_texts.h"

#include <array>

namespace nouns {

// clang-format off
/// The paradigms in the order in which they are offered, the third declension before the fourth, and as they are
/// named there. Italian has the English texts.
inline constexpr std::array OfferedParadigms = {
    FirstDeclension,        SecondDeclensionUs,     SecondDeclensionEr,
    SecondDeclensionNeuter, ThirdDeclension,        ThirdDeclensionNeuter,
    FourthDeclension,       FourthDeclensionNeuter, FifthDeclension,
};

inline constexpr std::array DeclensionRows = {
    //                   English                                     French                                       Italian  German                                    Spanish                                    Latin
    shell::LanguageTexts{"1st Declension (fem., puella -ae)",        "1ere déclension (fém., puella -ae)",        {},      "1. Deklination (f., puella -ae)",        "1a declensión (fem., puella -ae)",        "Declinatio Prima (fem., puella -ae)"},
    shell::LanguageTexts{"2nd Declension (masc., hortus -i)",        "2nde déclension (masc., hortus -i)",        {},      "2. Deklination (m., hortus -i)",         "2a declensión (masc., hortus -i)",        "Declinatio Secunda (masc., hortus -i)"},
    shell::LanguageTexts{"2nd Declension (masc., puer -i)",          "2nde déclension (masc., puer -i)",          {},      "2. Deklination (m., puer -i)",           "2a declensión (masc., puer -i)",          "Declinatio Secunda (masc., puer -i)"},
    shell::LanguageTexts{"2nd Declension (neut. donum -i)",          "2nde déclension (neutro donum -i)",         {},      "2. Deklination (n. donum -i)",           "2a declensión (neutro donum -i)",         "Declinatio Secunda (neut. donum -i)"}, // sic: French
    shell::LanguageTexts{"3rd Declension (fem./masc., sermo -onis)", "3eme déclension (fém./masc., sermo -onis)", {},      "3. Deklination (f./m., sermo -onis)",    "3a declensión (fem./masc., sermo -onis)", "Declinatio Tertia (fem./masc., sermo -onis)"},
    shell::LanguageTexts{"3rd Declension (neut., corpus-corporis)",  "3eme déclension (neut., corpus-corporis)",  {},      "3. Deklination (n., corpus- corporis)",  "3a declensión (neutro, corpus-corporis)", "Declinatio Tertia (neut., corpus- corporis)"}, // sic: blanks
    shell::LanguageTexts{"4th Declension (fem./masc., fructus -us)", "4eme déclension (fém./masc., fructus -us)", {},      "4. Deklination (f./masc., fructus -us)", "4a declensión (fem./masc., fructus -us)", "Declinatio Quarta (fem./masc., fructus -us)"},
    shell::LanguageTexts{"4th Declension (neut., cornu -us)",        "4eme déclension (neut., cornu -us)",        {},      "4. Deklination (n., cornu -us)",         "4a declensión (neutro, cornu -us)",       "Declinatio Quarta (neut., cornu -us)"},
    shell::LanguageTexts{"5th Declension (fem., res-rei)",           "5eme déclension (fém., res -rei)",          {},      "5. Deklination (f., res-rei)",           "5a declensión (fem., res-rei)",           "Declinatio Quinta (fem., res-rei)"}, // sic: blanks
};

static_assert(OfferedParadigms.size() == ParadigmCount && DeclensionRows.size() == ParadigmCount);

/// The groups of pronouns as they are offered. French and Italian have the English texts.
inline constexpr std::array<shell::LanguageTexts, PronounPages.size()> PronounRows = {{
    //                   English                                  French  Italian  German                             Spanish                                   Latin
    shell::LanguageTexts{"ego-tu-* (he, she, [it])",              {},     {},      "ego-tu-* (er, sie, [es])",        "ego-tu-* (él, ella)",                    "ego-tu-*"},
    shell::LanguageTexts{"is-ea-id (this/that [person/thing])",   {},     {},      "is-ea-id (dieser/jener)",         "is-ea-id (ese/esa [persona/cosa])",      "is-ea-id"},
    shell::LanguageTexts{"hic-haec-hoc (this [person/thing])",    {},     {},      "hic-haec-hoc (dieser)",           "hic-haec-hoc (este [persona/cosa])",     "hic-haec-hoc"},
    shell::LanguageTexts{"ille-illa-illud (that [person/thing])", {},     {},      "ille-illa-illud (jener)",         "ille-illa-illud (aquél [persona/cosa])", "ille-illa-illud"},
    shell::LanguageTexts{"qui-quae-quod (who/which)",             {},     {},      "qui-quae-quod (Relativpronomen)", "qui-quae-quod (quien/el cual)",          "qui-quae-quod"},
}};
// clang-format on

} // namespace nouns
