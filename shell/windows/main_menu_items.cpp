#include "shell/windows/main_menu_items.h"

#include "shell/kit/menus.h"
#include "shell/windows/main_menu.h"

#include <array>

namespace shell {

namespace {

using enum MenuKind;
using Row = MenuRow<MainMenu>;

// Italian leaves the main window as it is: its item is unavailable.
// clang-format off
constexpr std::array Rows = {
    //   Name                  Menu              Kind     English                      French                                        German                            Spanish                         Latin
    Row{{"FileMenu",           "",               Menu,   {"&File",                     "&Actions",                               {}, "&Datei",                         "&Archivo",                     "&Actiones"}}},
    Row{{"FileDecl",           "FileMenu",       Item,   {"&Nouns",                    "&Substantifs",                           {}, "&Substantive",                   "&Nombres",                     "&Declinationes"}}, &MainMenu::declensionRequested},
    Row{{"FileConj",           "FileMenu",       Item,   {"&Verbs",                    "&Verbes",                                {}, "&Verben",                        "&Verbos",                      "&Conjugationes"}}, &MainMenu::conjugationRequested},
    Row{{"FilePron",           "FileMenu",       Item,   {"&Pronouns",                 "&Pronoms",                               {}, "&Pronomen",                      "&Pronombres",                  "&Pronomia"}}, &MainMenu::pronounsRequested}, // sic
    Row{{"FileNounQuiz",       "FileMenu",       Item,   {"Noun &Quiz",                "&Quiz de substantifs",                   {}, "Substantiv&quiz",                "Prueba de n&ombres",           "Pro&batio nominum"}}, &MainMenu::nounQuizRequested},
    Row{{"", "FileMenu", Separator, {}}},
    Row{{"FileNounManager",    "FileMenu",       Item,   {"Noun &List...",             "&Liste des substantifs...",              {}, "Substantiv&liste...",            "&Lista de nombres...",         "&Index nominum..."}}, &MainMenu::nounManagerRequested},
    Row{{"FileVerbManager",    "FileMenu",       Item,   {"Ve&rb List...",             "Liste des ve&rbes...",                   {}, "Ve&rbliste...",                  "Lista de ve&rbos...",          "Index &verborum..."}}, &MainMenu::verbManagerRequested},
    Row{{"FileVcabManager",    "FileMenu",       Item,   {"V&ocabulary Lists...",      "Listes de v&ocabulaire...",              {}, "W&ortlisten...",                 "Listas de vo&cabulario...",    "Indices v&ocabulorum..."}}, &MainMenu::vocabularyManagerRequested},
    Row{{"", "FileMenu", Separator, {}}},
    Row{{"FileProgress",       "FileMenu",       Item,   {"Pro&gress",                 "Pro&grès",                               {}, "&Fortschritt",                   "Pro&greso",                    "Pro&gressus"}}, &MainMenu::progressRequested},
    Row{{"FileTables",         "FileMenu",       Item,   {"&Tables",                   "&Tableaux",                              {}, "&Tabellen",                      "&Tablas",                      "&Tabulae"}}, &MainMenu::tablesRequested},
    Row{{"FileExit",           "FileMenu",       Item,   {"E&xit",                     "&Sortie",                                {}, "Be&enden",                       "&Salir",                       "&Egressus"}}, &MainMenu::exitRequested},

    Row{{"OptionsMenu",        "",               Menu,   {"&Options",                  "&Options",                               {}, "&Optionen",                      "&Opciones",                    "&Optiones"}}},
    Row{{"SaveSettings",       "OptionsMenu",    Switch, {"Save &Current Settings",    "Presérver les &options ",                {}, "&Optionen speichern",            "Grabar &configuraciòn actual", "&Optiones conserve!"}}}, // sic, and the blank after the French text
    Row{{"VowelLengthVal",     "OptionsMenu",    Switch, {"Show &Vowel Length",        "Montrer la &longeur des voyelles",       {}, "&Vokallänge anzeigen",           "Mostrar cantidad &vocálica",   "Quantitem &vocalium ostende!"}}}, // sic
    Row{{"SoundStatus",        "OptionsMenu",    Switch, {"&Sound Effects",            "&Son",                                   {}, "&Lauteffekte",                   "Efectos de &sonido",           "&Sonus"}}},
    Row{{"SetDelay",           "OptionsMenu",    Item,   {"Set &Delay Factor...",      "Designer le intervalle de la &pause...", {}, "Pausenintervall &einstellen...", "&Poner facto de retardo...",   "Moram electronicam ordina!"}}, &MainMenu::delayRequested}, // sic
    Row{{"", "OptionsMenu", Separator, {}}},
    Row{{"OrderMenu",          "OptionsMenu",    Menu,   {"O&rder...",                 "O&rdre...",                              {}, "O&rdnung...",                    "O&rden...",                    "O&rdo..."}}},
    Row{{"RandomOrder",        "OrderMenu",      Choice, {"&Random Order",             "Ordre au &hasard",                       {}, "Aufs &Geratewohl",               "Orden al &azar",               "Ordo &fortuita"}}}, // sic
    Row{{"SequentialOrder",    "OrderMenu",      Choice, {"&Sequential Order",         "Ordre &séquentiel",                      {}, "&Folgerichtig",                  "Orden &secuencial",            "Ordo &sequentis"}}}, // sic
    Row{{"CaseOrderMenu",      "OptionsMenu",    Menu,   {"&Case Order...",            "&Ordre des cases...",                    {}, "&Kasusordnung...",               "&Orden de los casos...",       "Ordo &casum..."}}}, // sic
    Row{{"NGDAABOrder",        "CaseOrderMenu",  Choice, {"&Nom. Gen. Dat. Acc. Abl.", "&Nom. Gén. Dat. Acc. Abl.",              {}, "&Nom. Gen. Dat. Akk. Abl.",      "&Nom. Gen. Dat. Ac. Abl.",     "&Nom. Gen. Dat. Acc. Abl."}}},
    Row{{"NADGABOrder",        "CaseOrderMenu",  Choice, {"Nom. &Acc. Gen. Dat. Abl.", "Nom. &Acc. Gén. Dat. Abl.",              {}, "Nom. &Akk. Gen. Dat. Abl.",      "Nom. &Ac. Gen. Dat. Abl.",     "Nom. &Acc. Gen. Dat. Abl."}}},
    Row{{"LanguageMenu",       "OptionsMenu",    Menu,   {"&Language...",              "&Langues...",                            {}, "&Sprache...",                    "&Lengua...",                   "&Linquae..."}}}, // sic
    Row{{"EnglishLang",        "LanguageMenu",   Choice, {"&English",                  "&anglais",                               {}, "&Englisch",                      "In&glés",                      "Lingua &Anglorum"}}},
    Row{{"FrenchLang",         "LanguageMenu",   Choice, {"&French",                   "&français",                              {}, "&Französisch",                   "&Francés",                     "Lingua &Francorum"}}},
    Row{{"ItalianLang",        "LanguageMenu",   Choice, {"&Italian",                  "&italien",                               {}, "&Italienisch",                   "&Italiano",                    "Lingua &Italiae"}}},
    Row{{"GermanLang",         "LanguageMenu",   Choice, {"&German",                   "&allemand",                              {}, "&Deutsch",                       "&Alemán",                      "Lingua &Germanorum"}}},
    Row{{"SpanishLang",        "LanguageMenu",   Choice, {"&Spanish",                  "&espagnol",                              {}, "&Spanisch",                      "&Español",                     "Lingua &Hispanica"}}},
    Row{{"LatinLang",          "LanguageMenu",   Choice, {"&Latin",                    "&latin",                                 {}, "&Latein",                        "&Latín",                       "Lingua &Latina"}}},
    Row{{"NorwegianLang",      "LanguageMenu",   Choice, {"&Norwegian",                "&norvégien",                             {}, "&Norwegisch",                    "Noruego",                      {}}}},
    Row{{"", "OptionsMenu", Separator, {}}},
    Row{{"OptionsOptions",     "OptionsMenu",    Item,   {"&More Options...",          "Autres opt&ions...",                     {}, "&Weitere Optionen...",           "&Más opciones...",             "&Aliae optiones..."}}, &MainMenu::optionsRequested},
    Row{{"OptionsOptionsForm", "OptionsMenu",    Item,   {"Options &Window...",        "&Fenêtre des options...",                {}, "O&ptionsfenster...",             "Ventana de opc&iones...",      "&Fenestra optionum..."}}, &MainMenu::optionsRequested},

    Row{{"VocabularyMenu",     "",               Menu,   {"&Vocabulary",               "&Vocabulaire",                           {}, "&Wortschatz",                    "Vo&cabulario",                 "&Verba nostra"}}},
    Row{{"MainVocabulary",     "VocabularyMenu", Item,   {"Voca&bulary",               "Voca&bulaire",                           {}, "&Wortschatz",                    "Voca&bulario",                 "Verba &nostra"}}, &MainMenu::vocabularyRequested},

    Row{{"HelpMenu",           "",               Menu,   {"&Help",                     "A&ide",                                  {}, "&Hilfe",                         "A&yuda",                       "Au&xilium"}}},
    Row{{"HELPME",             "HelpMenu",       Item,   {"&Help = F1",                "&Assistance = F1",                       {}, "&Hilfe = F1",                    "A&yuda = F1",                  "Au&xilium = F1"}}, &MainMenu::helpRequested},
    Row{{"MainABout",          "HelpMenu",       Item,   {"&About...",                 "&de cette programme...",                 {}, "&Programminformationen",         "Acera de...",                  "&de hoc miraculo electronico..."}}, &MainMenu::aboutRequested}, // sic
};

constexpr std::array Buttons = {
    //             Name                 Request                           English        French              German          Spanish         Latin
    MainMenuButton{"ConjugationButton", &MainMenu::conjugationRequested, {"&Verbs",      "&Verbes",      {}, "&Verben",      "&Verbos",      "&Conjugationes"}},
    MainMenuButton{"DeclensionButton",  &MainMenu::declensionRequested,  {"&Nouns",      "&Substantifs", {}, "&Substantive", "&Nombres",     "&Declinationes"}},
    MainMenuButton{"PronounButton",     &MainMenu::pronounsRequested,    {"&Pronouns",   "&Pronomes",    {}, "&Pronomen",    "&Pronombres",  "&Pronomina"}}, // sic
    MainMenuButton{"QuizButton",        &MainMenu::quizRequested,        {"&Quiz",       "Un &Exercice", {}, "Ü&bung",       "P&rueba",      "Pro&batio"}},
    MainMenuButton{"VocabularyButton",  &MainMenu::vocabularyRequested,  {"Voca&bulary", "Voca&bulaire", {}, "&Wortschatz",  "Voca&bulario", "Verba &nostra"}},
    MainMenuButton{"ExitButton",        &MainMenu::exitRequested,        {"E&xit",       "S&ortie",      {}, "Be&enden",     "&Salir",       "&Egressus"}},
};

constexpr Caption VersionLine = {"VersionLine", {"Version VI", "Version VI", {}, "Version VI", "Versión VI", "Versio VI"}};
// clang-format on

std::vector<Caption> allCaptions()
{
    std::vector<Caption> captions = captionsOf(Rows);
    for (const MainMenuButton& button : Buttons)
        captions.push_back({button.name, button.texts});
    captions.push_back(VersionLine);
    return captions;
}

} // namespace

// Each line is as short as two buttons side by side.
const LanguageTexts FirstStepsTexts = {
    .english = "1. Choose an exercise, and then what to practise.\n"
               "2. Type the form that is asked and press Enter.\n"
               "3. If you do not know it, “?” shows it to you.",
    .french = "1. Choisissez un exercice, puis quoi apprendre.\n"
              "2. Tapez la forme demandée et appuyez sur Entrée.\n"
              "3. Si vous ne la savez pas, « ? » la montre.",
    .italian = {},
    .german = "1. Wählen Sie eine Übung und dann den Stoff.\n"
              "2. Tippen Sie die Form ein und drücken Sie Enter.\n"
              "3. Wenn Sie sie nicht wissen, zeigt „?“ sie an.",
    .spanish = "1. Elija un ejercicio y luego qué practicar.\n"
               "2. Escriba la forma que se pide y pulse Intro.\n"
               "3. Si no la sabe, «?» se la muestra.",
    .latin = "1. Elige exercitationem, deinde quid discas.\n"
             "2. Scribe formam quae quaeritur et preme «Enter».\n"
             "3. Si eam nescis, «?» eam monstrat.",
};

const LanguageTexts LastDrillTexts = {
    .english = "Right at once: %1. To repeat today: %2.",
    .french = "Justes du premier coup : %1. À revoir aujourd'hui : %2.",
    .italian = {},
    .german = "Auf Anhieb richtig: %1. Heute zu wiederholen: %2.",
    .spanish = "Bien a la primera: %1. Para repasar hoy: %2.",
    .latin = "Statim recta: %1. Hodie repetenda: %2.",
};

void makeMainMenuItems(QMenuBar& menuBar, MainMenu& window)
{
    makeMenus(menuBar, window, Rows);
}

std::span<const MainMenuButton> mainMenuButtons()
{
    return Buttons;
}

std::span<const Caption> mainMenuCaptions()
{
    static const std::vector<Caption> captions = allCaptions();
    return captions;
}

} // namespace shell
