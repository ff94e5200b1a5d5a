#include "nouns/windows/pronoun_chooser.h"

#include "nouns/pronoun_drill.h"

#include <array>

namespace nouns {

namespace {

using shell::Caption;
using shell::LanguageTexts;

// French and Italian keep the texts that the window is designed with.
// clang-format off
constexpr std::array Captions = {
    //                               English              French  Italian  German                     Spanish                 Latin
    Caption{"PronounChooser",       {"Select a Pronoun:", {},     {},      "Ein Pronomen auswählen:", "Elegir un pronombre:", "Pronomen elige!"}},
    Caption{"PronounChooserOK",     {"&OK",               {},     {},      "&OK",                     "&Si",                  "&Ita"}},
    Caption{"PronounChooserCancel", {"&Cancel",           {},     {},      "&Abbruch",                "&Cancelar",            "&Reverte!"}},
};

constexpr std::array<LanguageTexts, PronounGroupCount> Rows = {{
    //            English                                  French  Italian  German                             Spanish                                   Latin
    LanguageTexts{"ego-tu-* (he, she, [it])",              {},     {},      "ego-tu-* (er, sie, [es])",        "ego-tu-* (él, ella)",                    "ego-tu-*"},
    LanguageTexts{"is-ea-id (this/that [person/thing])",   {},     {},      "is-ea-id (dieser/jener)",         "is-ea-id (ese/esa [persona/cosa])",      "is-ea-id"},
    LanguageTexts{"hic-haec-hoc (this [person/thing])",    {},     {},      "hic-haec-hoc (dieser)",           "hic-haec-hoc (este [persona/cosa])",     "hic-haec-hoc"},
    LanguageTexts{"ille-illa-illud (that [person/thing])", {},     {},      "ille-illa-illud (jener)",         "ille-illa-illud (aquél [persona/cosa])", "ille-illa-illud"},
    LanguageTexts{"qui-quae-quod (who/which)",             {},     {},      "qui-quae-quod (Relativpronomen)", "qui-quae-quod (quien/el cual)",          "qui-quae-quod"},
}};
// clang-format on

} // namespace

PronounChooser::PronounChooser()
    : Chooser({.window = "PronounChooser",
               .active = "pronounchoose",
               .list = "PronounList",
               .ok = "PronounChooserOK",
               .cancel = "PronounChooserCancel",
               .frame = "PronounChooserFrame"},
              Captions, Rows)
{
}

} // namespace nouns
