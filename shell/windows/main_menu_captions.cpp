#include "shell/windows/main_menu_captions.h"

#include <array>

namespace shell {

namespace {

constexpr std::nullopt_t Unchanged = std::nullopt;

// Italian leaves the main window as it is: its item is unavailable.
constexpr Caption row(std::string_view control, std::string_view english, std::string_view german,
                      std::string_view french, std::string_view spanish,
                      std::optional<std::string_view> latin)
{
    return {control, {english, french, Unchanged, german, spanish, latin}};
}

// clang-format off
constexpr std::array MainMenuCaptions = {
    // Control                English                     German                                French                                     Spanish                             Latin
    row("DeclensionButton",   "&Nouns",                   "&Substantive",                       "&Substantifs",                            "&Nombres",                         "&Declinationes"),
    row("ConjugationButton",  "&Verbs",                   "&Verben",                            "&Verbes",                                 "&Verbos",                          "&Conjugationes"),
    row("PronounButton",      "&Pronouns",                "&Pronomen",                          "&Pronomes",                               "&Pronombres",                      "&Pronomina"),
    row("ExitButton",         "E&xit",                    "Be&enden",                           "S&ortie",                                 "&Salir",                           "&Egressus"),
    row("VocabularyButton",   "Voca&bulary",              "&Wortschatz",                        "Voca&bulaire",                            "Voca&bulario",                     "Verba &nostra"),
    row("QuizButton",         "&Quiz",                    "Ü&bung",                             "Un &Exercice",                            "P&rueba",                          "Pro&batio"),
    row("VersionLine",        "Version VI",               "Version VI",                         "Version VI",                              "Versión VI",                       "Versio VI"),
    row("SaveSettings",       "Save &Current Settings",   "&Optionen speichern",                "Presérver les &options ",                 "Grabar &configuraciòn actual",     "&Optiones conserve!"),
    row("VowelLengthVal",     "Show &Vowel Length",       "&Vokallänge anzeigen",               "Montrer la &longeur des voyelles",        "Mostrar cantidad &vocálica",       "Quantitem &vocalium ostende!"),
    row("SoundStatus",        "&Sound Effects",           "&Lauteffekte",                       "&Son",                                    "Efectos de &sonido",               "&Sonus"),
    row("SetDelay",           "Set &Delay Factor...",     "Pausenintervall &einstellen...",     "Designer le intervalle de la &pause...",  "&Poner facto de retardo...",       "Moram electronicam ordina!"),
    row("OrderMenu",          "O&rder...",                "O&rdnung...",                        "O&rdre...",                               "O&rden...",                        "O&rdo..."),
    row("CaseOrderMenu",      "&Case Order...",           "&Kasusordnung...",                   "&Ordre des cases...",                     "&Orden de los casos...",           "Ordo &casum..."),
    row("RandomOrder",        "&Random Order",            "Aufs &Geratewohl",                   "Ordre au &hasard",                        "Orden al &azar",                   "Ordo &fortuita"),
    row("SequentialOrder",    "&Sequential Order",        "&Folgerichtig",                      "Ordre &séquentiel",                       "Orden &secuencial",                "Ordo &sequentis"),
    row("LanguageMenu",       "&Language...",             "&Sprache...",                        "&Langues...",                             "&Lengua...",                       "&Linquae..."),
    row("EnglishLang",        "&English",                 "&Englisch",                          "&anglais",                                "In&glés",                          "Lingua &Anglorum"),
    row("FrenchLang",         "&French",                  "&Französisch",                       "&français",                               "&Francés",                         "Lingua &Francorum"),
    row("ItalianLang",        "&Italian",                 "&Italienisch",                       "&italien",                                "&Italiano",                        "Lingua &Italiae"),
    row("LatinLang",          "&Latin",                   "&Latein",                            "&latin",                                  "&Latín",                           "Lingua &Latina"),
    row("GermanLang",         "&German",                  "&Deutsch",                           "&allemand",                               "&Alemán",                          "Lingua &Germanorum"),
    row("SpanishLang",        "&Spanish",                 "&Spanisch",                          "&espagnol",                               "&Español",                         "Lingua &Hispanica"),
    row("NorwegianLang",      "&Norwegian",               "&Norwegisch",                        "&norvégien",                              "Noruego",                          Unchanged),
    row("HELPME",             "&Help = F1",               "&Hilfe = F1",                        "&Assistance = F1",                        "A&yuda = F1",                      "Au&xilium = F1"),
    row("MainABout",          "&About...",                "&Programminformationen",             "&de cette programme...",                  "Acera de...",                      "&de hoc miraculo electronico..."),

    row("FileMenu",           "&File",                    "&Datei",                             "&Actions",                                "&Archivo",                         "&Actiones"),
    row("OptionsMenu",        "&Options",                 "&Optionen",                          "&Options",                                "&Opciones",                        "&Optiones"),
    row("VocabularyMenu",     "&Vocabulary",              "&Wortschatz",                        "&Vocabulaire",                            "Vo&cabulario",                     "&Verba nostra"),
    row("HelpMenu",           "&Help",                    "&Hilfe",                             "A&ide",                                   "A&yuda",                           "Au&xilium"),

    // Items that do what a button does bear its caption, but for three of them.
    row("FileDecl",           "&Nouns",                   "&Substantive",                       "&Substantifs",                            "&Nombres",                         "&Declinationes"),
    row("FileConj",           "&Verbs",                   "&Verben",                            "&Verbes",                                 "&Verbos",                          "&Conjugationes"),
    row("FilePron",           "&Pronouns",                "&Pronomen",                          "&Pronoms",                                "&Pronombres",                      "&Pronomia"),
    row("FileExit",           "E&xit",                    "Be&enden",                           "&Sortie",                                 "&Salir",                           "&Egressus"),
    row("MainVocabulary",     "Voca&bulary",              "&Wortschatz",                        "Voca&bulaire",                            "Voca&bulario",                     "Verba &nostra"),

    row("FileNounQuiz",       "Noun &Quiz",               "Substantiv&quiz",                    "&Quiz de substantifs",                    "Prueba de n&ombres",               "Pro&batio nominum"),
    row("FileNounManager",    "Noun &List...",            "Substantiv&liste...",                "&Liste des substantifs...",               "&Lista de nombres...",             "&Index nominum..."),
    row("FileVerbManager",    "Ve&rb List...",            "Ve&rbliste...",                      "Liste des ve&rbes...",                    "Lista de ve&rbos...",              "Index &verborum..."),
    row("FileVcabManager",    "V&ocabulary Lists...",     "W&ortlisten...",                     "Listes de v&ocabulaire...",               "Listas de vo&cabulario...",        "Indices v&ocabulorum..."),
    row("OptionsOptions",     "&More Options...",         "&Weitere Optionen...",               "Autres opt&ions...",                      "&Más opciones...",                 "&Aliae optiones..."),
    row("OptionsOptionsForm", "Options &Window...",       "O&ptionsfenster...",                 "&Fenêtre des options...",                 "Ventana de opc&iones...",          "&Fenestra optionum..."),
    row("NGDAABOrder",        "&Nom. Gen. Dat. Acc. Abl.", "&Nom. Gen. Dat. Akk. Abl.",         "&Nom. Gén. Dat. Acc. Abl.",               "&Nom. Gen. Dat. Ac. Abl.",         "&Nom. Gen. Dat. Acc. Abl."),
    row("NADGABOrder",        "Nom. &Acc. Gen. Dat. Abl.", "Nom. &Akk. Gen. Dat. Abl.",         "Nom. &Acc. Gén. Dat. Abl.",               "Nom. &Ac. Gen. Dat. Abl.",         "Nom. &Acc. Gen. Dat. Abl."),
};
// clang-format on

} // namespace

std::span<const Caption> mainMenuCaptions()
{
    return MainMenuCaptions;
}

} // namespace shell
