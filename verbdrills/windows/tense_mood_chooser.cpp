#include "verbdrills/windows/tense_mood_chooser.h"

#include "verbdrills/conjugation_choice.h"
#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

namespace {

using shell::Caption;
using shell::englishToo;
using shell::LanguageTexts;

// clang-format off
constexpr std::array Captions = {
    //                                     English, French, Italian    German                         Spanish                   Latin
    Caption{"TenseMoodChooser", englishToo("Select a Tense/Mood",      "Eine Zeitform Auswählen",     "Elegir un timpo o modo", "Tempus et Modum elige!")}, // sic: Spanish
    Caption{"TenseMoodOK",      englishToo("&OK",                      "&OK",                         "&Si",                    "&Sic")},
    Caption{"TenseMoodCancel",  englishToo("&Cancel",                  "&Abbruch",                    "&Cancelar",              "&Reverte!")},
};

constexpr std::array<LanguageTexts, verbs::BlockCount> Rows = {{
    //         English, French, Italian       German                                Spanish                                 Latin
    englishToo("Present Indicative",             "Präsens Indikativ",                 "Presente de indicativo",                "Praesens Indicativum"),
    englishToo("Imperfect Indicative",           "Imperfekt Indikativ",               "Imperfecto de indicativo",              "Imperfectum Indicativum"),
    englishToo("Future Indicative",              "Futur Indikativ",                   "Futuro de indicativo",                  "Futurum Indicativum"),
    englishToo("Perfect Indicative",             "Perfekt Indikativ",                 "Perfecto de indicativo",                "Praeteritum Perfectum Indicativum"),
    englishToo("Pluperfect Indicative",          "Plusquamperfekt Indikativ",         "Pluscuamperfecto de indicativo",        "Plusquam Perfectum Indicativum"),
    englishToo("Future Perfect Indicative",      "Futur Perfekt Indikativ",           "Futuro perfecto de indicativo",         "Futurum Perfectum Indicativum"),
    englishToo("Present Subjunctive",            "Präsens Konjunktiv",                "Presente subjuntivo",                   "Praesens Subjunctivum"),
    englishToo("Imperfect Subjunctive",          "Imperfekt Konjunktiv",              "Imperfecto de subjuntivo",              "Imperfectum Subjunctivum"),
    englishToo("Perfect Subjunctive",            "Perfekt Konjunktiv",                "Perfecto de subjuntivo",                "Perfectum Subjunctivum"),
    englishToo("Pluperfect Subjunctive",         "Plusquamperfekt Konjunktiv",        "Pluscuamperfecto de subjuntivo",        "Plusquamperfectum Subjunctivum"),
    englishToo("Imperative",                     "Imperativ",                         "Imperativo",                            "Imperativus Modus"),
    englishToo("Passive Present Indicative",     "Passiv Präsens Indikativ",          "Presente pasivo",                       "Passivum Praesens"),
    englishToo("Passive Imperfect Indicative",   "Passiv Imperfekt Indikativ",        "Imperfecto pasivo",                     "Passivum Imperfectum"),
    englishToo("Passive Future Indicative",      "Passiv Futur Indikativ",            "Futuro pasivo",                         "Passivum Futurum"),
    englishToo("Passive Perfect Indicative",     "Passiv Perfekt Indikativ",          "Perfecto pasivo",                       "Passivum Perfectum"),
    englishToo("Passive Pluperfect Indicative",  "Passiv Plusquamperfekt Indikativ",  "Pluscuamperfecto pasivo",               "Passivum Plusquamperfectum"),
    englishToo("Passive Future Perfect",         "Passiv Futur Perfekt",              "Futuro de subjuntivo pasivo",           "Passivum Futurum Perfectum"), // sic: Spanish
    englishToo("Passive Present Subjunctive",    "Passiv Präsens Konjunktiv",         "Presente de subjuntivo pasivo",         "Passivum Praesens Subjunctivum"),
    englishToo("Passive Imperfect Subjunctive",  "Passiv Imperfekt Konjunktiv",       "Imperfecto de subjuntivo pasivo",       "Passivum Imperfectum Subjunctivum"),
    englishToo("Passive Perfect Subjunctive",    "Passiv Perfekt Konjunktiv",         "Perfecto de subjuntivo pasivo",         "Passivum Perfectum Subjunctivum"),
    englishToo("Passive Pluperfect Subjunctive", "Passiv Plusquamperfekt Konjunktiv", "Pluscuamperfecto de subjuntivo pasivo", "Passivum Plusquamperfectum Subjunctivum"),
}};
// clang-format on

} // namespace

TenseMoodChooser::TenseMoodChooser()
    : Chooser({.window = "TenseMoodChooser",
               .active = "tensemood",
               .list = "TenseMood",
               .ok = "TenseMoodOK",
               .cancel = "TenseMoodCancel",
               .frame = "TenseMoodFrame"},
              Captions, Rows)
{
}

void TenseMoodChooser::beginChoice()
{
    beginTenseChoice();
}

} // namespace verbdrills
