#include "verbdrills/windows/probatio_captions.h"

#include "verbdrills/quiz_texts.h"

#include <array>

namespace verbdrills {

using shell::Caption;
using shell::englishToo;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array Captions = {
    //                                    English, French, Italian              German                                                             Spanish                              Latin
    Caption{"Probatio",        QuizTitle},
    Caption{"YourAnswerLabel", englishToo("Your Answer",                        "Ihre Antwort",                                                    "Tu respuesta",                      "Responsum Tuum")},
    Caption{"HelpLabel",       englishToo("Help=F1",                            "Hilfe=F1",                                                        "Ayuda=F1",                          "Auxilium=F1")},
    Caption{"IdentifyLabel",   englishToo("Identify the grammar of this form:", "Geben Sie die grammatischen Einzelheiten der folgenden Form an!", "Analiza la forma de esta palabra:", "Dona grammaticam sequentis verbi:")},
    Caption{"QuizOK",          englishToo("&OK",                                "&OK",                                                             "&Si",                               "&Ita")},
    Caption{"QuizCancel",      englishToo("&Cancel",                            "&Abbruch",                                                        "&Cancelar",                         "&Reverte!")},
    Caption{"QuizSkip",        englishToo("&Skip",                              "Aus&lassen",                                                      "S&altar",                           "&Transgredire!")},
    Caption{"QuizOptions",     englishToo("O&ptions",                           "O&ptionen",                                                       "&Opciones",                         "O&ptiones")},
    Caption{"QuizFirst",       englishToo("&First Person",                      "&Erste Person",                                                   "Pri&mera persona",                  "Persona &prima")},
    Caption{"QuizSecond",      englishToo("&Second Person",                     "&Zweite Person",                                                  "&Segunda persona",                  "Persona se&cunda")},
    Caption{"QuizThird",       englishToo("&Third Person",                      "&Dritte Person",                                                  "&Tercera persona",                  "Persona &tertia")},
    Caption{"QuizSing",        englishToo("Sin&gular",                          "Ein&zahl",                                                        "Sin&gular",                         "Sin&gularis")},
    Caption{"QuizPlural",      englishToo("&Plural",                            "&Mehrzahl",                                                       "&Plural",                           "&Pluralis")},
};

// Spanish has the English heading.
constexpr LanguageTexts CorrectHeading = englishToo("Correct Answer", "Korrekte Antwort", "Correct Answer", "Responsum rectum");
// clang-format on

} // namespace

std::span<const Caption> probatioCaptions()
{
    return Captions;
}

std::string_view correctHeading()
{
    return CorrectHeading.currentOrDesigned();
}

} // namespace verbdrills
