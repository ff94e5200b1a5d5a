#include "nouns/windows/choosers.h"

#include "nouns/declension_drill.h"
#include "nouns/pronoun_drill.h"

#include <array>

namespace nouns {

namespace {

using shell::Caption;
using shell::ChooserNames;
using shell::LanguageTexts;

// Italian keeps the texts that the window is designed with.
// clang-format off
constexpr ChooserNames DeclensionNames = {
    .window = "DeclinationChoose", .active = "declchoose", .list = "DeclinationList",
    .ok = "SdeclOK", .cancel = "DeclinationCancel", .frame = "DeclinationFrame"};

constexpr std::array DeclensionCaptions = {
    //                            English                French                         Italian  German                        Spanish                   Latin
    Caption{"DeclinationChoose", {"Choose a Declension", "Choississez une déclinasion", {},      "Eine Deklination Auswählen", "Elegir una declinación", "Declinationem elige!"}}, // sic: French
    Caption{"ChooserHeading",    {"Choose a declension", "Choisissez une déclinaison",  {},      "Deklination auswählen",      "Elija una declinación",  "Declinationem elige"}},
    Caption{"SdeclOK",           {"&OK",                 "&OK",                         {},      "&OK",                        "&Si",                    "&Ita"}},
    Caption{"DeclinationCancel", {"&Cancel",             "&Cancel",                     {},      "&Abbruch",                   "&Cancelar",              "&Reverte!"}},
};

constexpr std::array DeclensionRows = {
    //            English                                     French                                       Italian  German                                    Spanish                                    Latin
    LanguageTexts{"1st Declension (fem., puella -ae)",        "1ere déclension (fém., puella -ae)",        {},      "1. Deklination (f., puella -ae)",        "1a declensión (fem., puella -ae)",        "Declinatio Prima (fem., puella -ae)"},
    LanguageTexts{"2nd Declension (masc., hortus -i)",        "2nde déclension (masc., hortus -i)",        {},      "2. Deklination (m., hortus -i)",         "2a declensión (masc., hortus -i)",        "Declinatio Secunda (masc., hortus -i)"},
    LanguageTexts{"2nd Declension (masc., puer -i)",          "2nde déclension (masc., puer -i)",          {},      "2. Deklination (m., puer -i)",           "2a declensión (masc., puer -i)",          "Declinatio Secunda (masc., puer -i)"},
    LanguageTexts{"2nd Declension (neut. donum -i)",          "2nde déclension (neutro donum -i)",         {},      "2. Deklination (n. donum -i)",           "2a declensión (neutro donum -i)",         "Declinatio Secunda (neut. donum -i)"}, // sic: French
    LanguageTexts{"3rd Declension (fem./masc., sermo -onis)", "3eme déclension (fém./masc., sermo -onis)", {},      "3. Deklination (f./m., sermo -onis)",    "3a declensión (fem./masc., sermo -onis)", "Declinatio Tertia (fem./masc., sermo -onis)"},
    LanguageTexts{"3rd Declension (neut., corpus-corporis)",  "3eme déclension (neut., corpus-corporis)",  {},      "3. Deklination (n., corpus- corporis)",  "3a declensión (neutro, corpus-corporis)", "Declinatio Tertia (neut., corpus- corporis)"}, // sic: blanks
    LanguageTexts{"4th Declension (fem./masc., fructus -us)", "4eme déclension (fém./masc., fructus -us)", {},      "4. Deklination (f./masc., fructus -us)", "4a declensión (fem./masc., fructus -us)", "Declinatio Quarta (fem./masc., fructus -us)"},
    LanguageTexts{"4th Declension (neut., cornu -us)",        "4eme déclension (neut., cornu -us)",        {},      "4. Deklination (n., cornu -us)",         "4a declensión (neutro, cornu -us)",       "Declinatio Quarta (neut., cornu -us)"},
    LanguageTexts{"5th Declension (fem., res-rei)",           "5eme déclension (fém., res -rei)",          {},      "5. Deklination (f., res-rei)",           "5a declensión (fem., res-rei)",           "Declinatio Quinta (fem., res-rei)"}, // sic: blanks
};

static_assert(DeclensionRows.size() == ParadigmCount);

// French and Italian keep the texts that the window is designed with.
constexpr ChooserNames PronounNames = {
    .window = "PronounChooser", .active = "pronounchoose", .list = "PronounList",
    .ok = "PronounChooserOK", .cancel = "PronounChooserCancel", .frame = "PronounChooserFrame"};

constexpr std::array PronounCaptions = {
    //                               English              French  Italian  German                     Spanish                 Latin
    Caption{"PronounChooser",       {"Select a Pronoun:", {},     {},      "Ein Pronomen auswählen:", "Elegir un pronombre:", "Pronomen elige!"}},
    Caption{"ChooserHeading",       {"Choose a pronoun",  {},     {},      "Pronomen auswählen",      "Elija un pronombre",   "Pronomen elige"}},
    Caption{"PronounChooserOK",     {"&OK",               {},     {},      "&OK",                     "&Si",                  "&Ita"}},
    Caption{"PronounChooserCancel", {"&Cancel",           {},     {},      "&Abbruch",                "&Cancelar",            "&Reverte!"}},
};

constexpr std::array<LanguageTexts, PronounGroupCount> PronounRows = {{
    //            English                                  French  Italian  German                             Spanish                                   Latin
    LanguageTexts{"ego-tu-* (he, she, [it])",              {},     {},      "ego-tu-* (er, sie, [es])",        "ego-tu-* (él, ella)",                    "ego-tu-*"},
    LanguageTexts{"is-ea-id (this/that [person/thing])",   {},     {},      "is-ea-id (dieser/jener)",         "is-ea-id (ese/esa [persona/cosa])",      "is-ea-id"},
    LanguageTexts{"hic-haec-hoc (this [person/thing])",    {},     {},      "hic-haec-hoc (dieser)",           "hic-haec-hoc (este [persona/cosa])",     "hic-haec-hoc"},
    LanguageTexts{"ille-illa-illud (that [person/thing])", {},     {},      "ille-illa-illud (jener)",         "ille-illa-illud (aquél [persona/cosa])", "ille-illa-illud"},
    LanguageTexts{"qui-quae-quod (who/which)",             {},     {},      "qui-quae-quod (Relativpronomen)", "qui-quae-quod (quien/el cual)",          "qui-quae-quod"},
}};
// clang-format on

} // namespace

DeclinationChoose::DeclinationChoose() : Chooser(DeclensionNames, DeclensionCaptions, DeclensionRows)
{
    setWindowModality(Qt::ApplicationModal);
}

void DeclinationChoose::beginChoice()
{
    beginDeclensionChoice();
}

bool DeclinationChoose::beginsAtOk() const
{
    return true;
}

PronounChooser::PronounChooser() : Chooser(PronounNames, PronounCaptions, PronounRows) {}

} // namespace nouns
