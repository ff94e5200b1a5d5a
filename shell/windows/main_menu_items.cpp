#include "shell/windows/main_menu_items.h"

#include "shell/kit/menus.h"
#include "shell/windows/main_menu.h"

#include <array>

namespace shell {

namespace {

using enum MenuKind;

using Request = void (MainMenu::*)();

constexpr Request None = nullptr;
constexpr std::nullopt_t Unchanged = std::nullopt;

// Italian leaves the main window as it is: its item is unavailable.
constexpr LanguageTexts texts(std::string_view english, std::string_view german, std::string_view french,
                              std::string_view spanish, std::optional<std::string_view> latin)
{
    return {english, french, Unchanged, german, spanish, latin};
}

constexpr MenuRow<MainMenu> row(std::string_view name, std::string_view menu, MenuKind kind, Request request,
                                std::string_view english, std::string_view german, std::string_view french,
                                std::string_view spanish, std::optional<std::string_view> latin)
{
    return {{name, menu, kind, texts(english, german, french, spanish, latin)}, request};
}

constexpr MenuRow<MainMenu> separator(std::string_view menu)
{
    return {{"", menu, Separator, {}}};
}

constexpr MainMenuButton button(std::string_view name, Request request, std::string_view english,
                                std::string_view german, std::string_view french, std::string_view spanish,
                                std::string_view latin)
{
    return {name, request, texts(english, german, french, spanish, latin)};
}

// clang-format off
constexpr std::array Rows = {
    //  Name                  Menu              Kind    Request                                English                      German                            French                                    Spanish                         Latin
    row("FileMenu",           "",               Menu,   None,                                  "&File",                     "&Datei",                         "&Actions",                               "&Archivo",                     "&Actiones"),
    row("FileDecl",           "FileMenu",       Item,   &MainMenu::declensionRequested,        "&Nouns",                    "&Substantive",                   "&Substantifs",                           "&Nombres",                     "&Declinationes"),
    row("FileConj",           "FileMenu",       Item,   &MainMenu::conjugationRequested,       "&Verbs",                    "&Verben",                        "&Verbes",                                "&Verbos",                      "&Conjugationes"),
    row("FilePron",           "FileMenu",       Item,   &MainMenu::pronounsRequested,          "&Pronouns",                 "&Pronomen",                      "&Pronoms",                               "&Pronombres",                  "&Pronomia"), // sic
    row("FileNounQuiz",       "FileMenu",       Item,   &MainMenu::nounQuizRequested,          "Noun &Quiz",                "Substantiv&quiz",                "&Quiz de substantifs",                   "Prueba de n&ombres",           "Pro&batio nominum"),
    separator("FileMenu"),
    row("FileNounManager",    "FileMenu",       Item,   &MainMenu::nounManagerRequested,       "Noun &List...",             "Substantiv&liste...",            "&Liste des substantifs...",              "&Lista de nombres...",         "&Index nominum..."),
    row("FileVerbManager",    "FileMenu",       Item,   &MainMenu::verbManagerRequested,       "Ve&rb List...",             "Ve&rbliste...",                  "Liste des ve&rbes...",                   "Lista de ve&rbos...",          "Index &verborum..."),
    row("FileVcabManager",    "FileMenu",       Item,   &MainMenu::vocabularyManagerRequested, "V&ocabulary Lists...",      "W&ortlisten...",                 "Listes de v&ocabulaire...",              "Listas de vo&cabulario...",    "Indices v&ocabulorum..."),
    separator("FileMenu"),
    row("FileExit",           "FileMenu",       Item,   &MainMenu::exitRequested,              "E&xit",                     "Be&enden",                       "&Sortie",                                "&Salir",                       "&Egressus"),

    row("OptionsMenu",        "",               Menu,   None,                                  "&Options",                  "&Optionen",                      "&Options",                               "&Opciones",                    "&Optiones"),
    row("SaveSettings",       "OptionsMenu",    Switch, None,                                  "Save &Current Settings",    "&Optionen speichern",            "Presérver les &options ",                "Grabar &configuraciòn actual", "&Optiones conserve!"), // sic, and the blank after the French text
    row("VowelLengthVal",     "OptionsMenu",    Switch, None,                                  "Show &Vowel Length",        "&Vokallänge anzeigen",           "Montrer la &longeur des voyelles",       "Mostrar cantidad &vocálica",   "Quantitem &vocalium ostende!"), // sic
    row("SoundStatus",        "OptionsMenu",    Switch, None,                                  "&Sound Effects",            "&Lauteffekte",                   "&Son",                                   "Efectos de &sonido",           "&Sonus"),
    row("SetDelay",           "OptionsMenu",    Item,   &MainMenu::delayRequested,             "Set &Delay Factor...",      "Pausenintervall &einstellen...", "Designer le intervalle de la &pause...", "&Poner facto de retardo...",   "Moram electronicam ordina!"), // sic
    separator("OptionsMenu"),
    row("OrderMenu",          "OptionsMenu",    Menu,   None,                                  "O&rder...",                 "O&rdnung...",                    "O&rdre...",                              "O&rden...",                    "O&rdo..."),
    row("RandomOrder",        "OrderMenu",      Choice, None,                                  "&Random Order",             "Aufs &Geratewohl",               "Ordre au &hasard",                       "Orden al &azar",               "Ordo &fortuita"), // sic
    row("SequentialOrder",    "OrderMenu",      Choice, None,                                  "&Sequential Order",         "&Folgerichtig",                  "Ordre &séquentiel",                      "Orden &secuencial",            "Ordo &sequentis"), // sic
    row("CaseOrderMenu",      "OptionsMenu",    Menu,   None,                                  "&Case Order...",            "&Kasusordnung...",               "&Ordre des cases...",                    "&Orden de los casos...",       "Ordo &casum..."), // sic
    row("NGDAABOrder",        "CaseOrderMenu",  Choice, None,                                  "&Nom. Gen. Dat. Acc. Abl.", "&Nom. Gen. Dat. Akk. Abl.",      "&Nom. Gén. Dat. Acc. Abl.",              "&Nom. Gen. Dat. Ac. Abl.",     "&Nom. Gen. Dat. Acc. Abl."),
    row("NADGABOrder",        "CaseOrderMenu",  Choice, None,                                  "Nom. &Acc. Gen. Dat. Abl.", "Nom. &Akk. Gen. Dat. Abl.",      "Nom. &Acc. Gén. Dat. Abl.",              "Nom. &Ac. Gen. Dat. Abl.",     "Nom. &Acc. Gen. Dat. Abl."),
    row("LanguageMenu",       "OptionsMenu",    Menu,   None,                                  "&Language...",              "&Sprache...",                    "&Langues...",                            "&Lengua...",                   "&Linquae..."), // sic
    row("EnglishLang",        "LanguageMenu",   Choice, None,                                  "&English",                  "&Englisch",                      "&anglais",                               "In&glés",                      "Lingua &Anglorum"),
    row("FrenchLang",         "LanguageMenu",   Choice, None,                                  "&French",                   "&Französisch",                   "&français",                              "&Francés",                     "Lingua &Francorum"),
    row("ItalianLang",        "LanguageMenu",   Choice, None,                                  "&Italian",                  "&Italienisch",                   "&italien",                               "&Italiano",                    "Lingua &Italiae"),
    row("GermanLang",         "LanguageMenu",   Choice, None,                                  "&German",                   "&Deutsch",                       "&allemand",                              "&Alemán",                      "Lingua &Germanorum"),
    row("SpanishLang",        "LanguageMenu",   Choice, None,                                  "&Spanish",                  "&Spanisch",                      "&espagnol",                              "&Español",                     "Lingua &Hispanica"),
    row("LatinLang",          "LanguageMenu",   Choice, None,                                  "&Latin",                    "&Latein",                        "&latin",                                 "&Latín",                       "Lingua &Latina"),
    row("NorwegianLang",      "LanguageMenu",   Choice, None,                                  "&Norwegian",                "&Norwegisch",                    "&norvégien",                             "Noruego",                      Unchanged),
    separator("OptionsMenu"),
    row("OptionsOptions",     "OptionsMenu",    Item,   &MainMenu::optionsRequested,           "&More Options...",          "&Weitere Optionen...",           "Autres opt&ions...",                     "&Más opciones...",             "&Aliae optiones..."),
    row("OptionsOptionsForm", "OptionsMenu",    Item,   &MainMenu::optionsRequested,           "Options &Window...",        "O&ptionsfenster...",             "&Fenêtre des options...",                "Ventana de opc&iones...",      "&Fenestra optionum..."),

    row("VocabularyMenu",     "",               Menu,   None,                                  "&Vocabulary",               "&Wortschatz",                    "&Vocabulaire",                           "Vo&cabulario",                 "&Verba nostra"),
    row("MainVocabulary",     "VocabularyMenu", Item,   &MainMenu::vocabularyRequested,        "Voca&bulary",               "&Wortschatz",                    "Voca&bulaire",                           "Voca&bulario",                 "Verba &nostra"),

    row("HelpMenu",           "",               Menu,   None,                                  "&Help",                     "&Hilfe",                         "A&ide",                                  "A&yuda",                       "Au&xilium"),
    row("HELPME",             "HelpMenu",       Item,   &MainMenu::helpRequested,              "&Help = F1",                "&Hilfe = F1",                    "&Assistance = F1",                       "A&yuda = F1",                  "Au&xilium = F1"),
    row("MainABout",          "HelpMenu",       Item,   &MainMenu::aboutRequested,             "&About...",                 "&Programminformationen",         "&de cette programme...",                 "Acera de...",                  "&de hoc miraculo electronico..."), // sic
};

constexpr std::array Buttons = {
    //     Name                 Request                          English        German          French          Spanish         Latin
    button("ConjugationButton", &MainMenu::conjugationRequested, "&Verbs",      "&Verben",      "&Verbes",      "&Verbos",      "&Conjugationes"),
    button("DeclensionButton",  &MainMenu::declensionRequested,  "&Nouns",      "&Substantive", "&Substantifs", "&Nombres",     "&Declinationes"),
    button("PronounButton",     &MainMenu::pronounsRequested,    "&Pronouns",   "&Pronomen",    "&Pronomes",    "&Pronombres",  "&Pronomina"), // sic
    button("QuizButton",        &MainMenu::quizRequested,        "&Quiz",       "Ü&bung",       "Un &Exercice", "P&rueba",      "Pro&batio"),
    button("VocabularyButton",  &MainMenu::vocabularyRequested,  "Voca&bulary", "&Wortschatz",  "Voca&bulaire", "Voca&bulario", "Verba &nostra"),
    button("ExitButton",        &MainMenu::exitRequested,        "E&xit",       "Be&enden",     "S&ortie",      "&Salir",       "&Egressus"),
};

constexpr Caption VersionLine = {"VersionLine", texts("Version VI", "Version VI", "Version VI", "Versión VI", "Versio VI")};
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
