#include "vocabulary/windows/vcabtester_menus.h"

#include "shell/kit/menus.h"
#include "vocabulary/windows/vcabtester.h"

#include <array>
#include <vector>

namespace vocabulary {

namespace {

using shell::MenuKind;
using shell::MenuRow;
using enum MenuKind;

using Request = void (Vcabtester::*)();

constexpr Request None = nullptr;

constexpr MenuRow<Vcabtester> row(std::string_view name, std::string_view menu, MenuKind kind,
                                  Request request, std::string_view english, std::string_view french,
                                  std::string_view german, std::string_view spanish, std::string_view latin)
{
    return {{name, menu, kind, {english, french, {}, german, spanish, latin}}, request};
}

// The options of the prompt language say what is asked for: the other side of the word.
// clang-format off
constexpr std::array Rows = {
    //  Name                                Menu                       Kind    Request                       English                  French                        German                        Spanish                      Latin
    row("VcabTesterFile",                   "",                        Menu,   None,                         "&List",                 "&Liste",                     "&Liste",                     "&Lista",                    "In&dex"),
    row("VcabTesterFileOpen",               "VcabTesterFile",          Item,   &Vcabtester::listRequested,   "&Open Another List...", "&Ouvrir une autre liste...", "&Andere Liste öffnen...",    "&Abrir otra lista...",      "&Alium indicem aperi..."),
    row("VcabTesterEdit",                   "VcabTesterFile",          Item,   &Vcabtester::editorRequested, "&Edit the List...",     "&Modifier la liste...",      "Liste &bearbeiten...",       "&Editar la lista...",       "Indicem &corrige..."),

    row("VcabtesterOptionsOrder",           "",                        Menu,   None,                         "O&rder",                "O&rdre",                     "&Reihenfolge",               "O&rden",                    "O&rdo"),
    row("VcabtesterOptionsOrderSequential", "VcabtesterOptionsOrder",  Choice, None,                         "&Sequential",           "À la &suite",                "&Der Reihe nach",            "En &secuencia",             "Ex &ordine"),
    row("VcabtesterOptionsOrderRandom",     "VcabtesterOptionsOrder",  Choice, None,                         "&Random",               "Au &hasard",                 "&Zufällig",                  "Al &azar",                  "&Fortuito"),

    row("VcabtesterOptionsPrompt",          "",                        Menu,   None,                         "&Question",             "&Question",                  "&Frage",                     "&Pregunta",                 "&Quaestio"),
    row("VcabtesterOptionsPromptEnglish",   "VcabtesterOptionsPrompt", Choice, None,                         "Ask for the &Meaning",  "Demander le &sens",          "Nach der &Bedeutung fragen", "Preguntar el &significado", "&Significationem quaere"),
    row("VcabtesterOptionsPromptLatin",     "VcabtesterOptionsPrompt", Choice, None,                         "Ask for the &Word",     "Demander le &mot",           "Nach dem &Wort fragen",      "Preguntar la &palabra",     "&Verbum quaere"),
    row("VcabtesterOptionsPromptMixed",     "VcabtesterOptionsPrompt", Choice, None,                         "Mi&xed",                "&L'un ou l'autre",           "&Gemischt",                  "&Mezclado",                 "&Mixtim"),
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
