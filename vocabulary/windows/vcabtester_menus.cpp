#include "vocabulary/windows/vcabtester_menus.h"

#include "shell/kit/menus.h"
#include "vocabulary/windows/vcabtester.h"

#include <array>
#include <vector>

namespace vocabulary {

namespace {

using enum shell::MenuKind;
using Row = shell::MenuRow<Vcabtester>;

// The options of the prompt language say what is asked for: the other side of the word.
// clang-format off
constexpr std::array Rows = {
    //   Name                                Menu                       Kind     English                  French                            German                        Spanish                      Latin
    Row{{"VcabTesterFile",                   "",                        Menu,   {"&List",                 "&Liste",                     {}, "&Liste",                     "&Lista",                    "In&dex"}}},
    Row{{"VcabTesterFileOpen",               "VcabTesterFile",          Item,   {"&Open Another List...", "&Ouvrir une autre liste...", {}, "&Andere Liste öffnen...",    "&Abrir otra lista...",      "&Alium indicem aperi..."}}, &Vcabtester::listRequested},
    Row{{"VcabTesterEdit",                   "VcabTesterFile",          Item,   {"&Edit the List...",     "&Modifier la liste...",      {}, "Liste &bearbeiten...",       "&Editar la lista...",       "Indicem &corrige..."}}, &Vcabtester::editorRequested},

    Row{{"VcabtesterOptionsOrder",           "",                        Menu,   {"O&rder",                "O&rdre",                     {}, "&Reihenfolge",               "O&rden",                    "O&rdo"}}},
    Row{{"VcabtesterOptionsOrderSequential", "VcabtesterOptionsOrder",  Choice, {"&Sequential",           "À la &suite",                {}, "&Der Reihe nach",            "En &secuencia",             "Ex &ordine"}}},
    Row{{"VcabtesterOptionsOrderRandom",     "VcabtesterOptionsOrder",  Choice, {"&Random",               "Au &hasard",                 {}, "&Zufällig",                  "Al &azar",                  "&Fortuito"}}},

    Row{{"VcabtesterOptionsPrompt",          "",                        Menu,   {"&Question",             "&Question",                  {}, "&Frage",                     "&Pregunta",                 "&Quaestio"}}},
    Row{{"VcabtesterOptionsPromptEnglish",   "VcabtesterOptionsPrompt", Choice, {"Ask for the &Meaning",  "Demander le &sens",          {}, "Nach der &Bedeutung fragen", "Preguntar el &significado", "&Significationem quaere"}}},
    Row{{"VcabtesterOptionsPromptLatin",     "VcabtesterOptionsPrompt", Choice, {"Ask for the &Word",     "Demander le &mot",           {}, "Nach dem &Wort fragen",      "Preguntar la &palabra",     "&Verbum quaere"}}},
    Row{{"VcabtesterOptionsPromptMixed",     "VcabtesterOptionsPrompt", Choice, {"Mi&xed",                "&L'un ou l'autre",           {}, "&Gemischt",                  "&Mezclado",                 "&Mixtim"}}},
};
// clang-format on

} // namespace

void makeVcabtesterMenus(QMenuBar& menuBar, Vcabtester& tester)
{
    shell::makeMenus(menuBar, tester, Rows);
}

std::span<const shell::Caption> vcabtesterMenuCaptions()
{
    static const std::vector<shell::Caption> captions = shell::captionsOf(Rows);
    return captions;
}

} // namespace vocabulary
