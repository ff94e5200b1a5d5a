#include "nouns/windows/choosers.h"

#include "nouns/chooser_rows.h"
#include "nouns/declension_drill.h"

#include <array>

namespace nouns {

namespace {

using shell::Caption;
using shell::ChooserNames;

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
