#pragma once

#include "shell/language_texts.h"
#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

// clang-format off
/// The tenses in the program's order, as the verb quiz names them. The chooser has names of its own for a few.
inline constexpr std::array NamesOfTenses = {
    //                English, French, Italian             German                               Spanish                                  Latin
    shell::englishToo("Present Indicative",                "Präsens Indikativ",                 "Presente de indicativo",                "Praesens Indicativum"),
    shell::englishToo("Imperfect Indicative",              "Imperfekt Indikativ",               "Imperfecto de indicativo",              "Imperfectum Indicativum"),
    shell::englishToo("Future Indicative",                 "Futur Indikativ",                   "Futuro de indicativo",                  "Futurum Indicativum"),
    shell::englishToo("Perfect Indicative",                "Perfekt Indikativ",                 "Perfecto de indicativo",                "Perfectum Indicativum"),
    shell::englishToo("Pluperfect Indicative",             "Plusquamperfekt Indikativ",         "Pluscuamperfecto de indicativo",        "Plusquam Perfectum Indicativum"),
    shell::englishToo("Future Perfect Indicative",         "Futur Perfekt Indikativ",           "Futuro perfecto de indicativo",         "Futurum Perfectum Indicativum"),
    shell::englishToo("Present Subjunctive",               "Präsens Konjunktiv",                "Presente subjuntivo",                   "Praesens Subjunctivum"),
    shell::englishToo("Imperfect Subjunctive",             "Imperfekt Konjunktiv",              "Imperfecto de subjuntivo",              "Imperfectum Subjunctivum"),
    shell::englishToo("Perfect Subjunctive",               "Perfekt Konjunktiv",                "Perfecto de subjuntivo",                "Perfectum Subjunctivum"),
    shell::englishToo("Pluperfect Subjunctive",            "Plusquamperfekt Konjunktiv",        "Pluscuamperfecto de subjuntivo",        "Plusquamperfectum Subjunctivum"),
    shell::englishToo("Imperative",                        "Imperativ",                         "Imperativo",                            "Imperativus Modus"),
    shell::englishToo("Passive Present Indicative",        "Passiv Präsens Indikativ",          "Presente pasivo",                       "Passivum Praesens Indicativum"),
    shell::englishToo("Passive Imperfect Indicative",      "Passiv Imperfekt Indikativ",        "Imperfecto pasivo",                     "Passivum Imperfectum Indicativum"),
    shell::englishToo("Passive Future Indicative",         "Passiv Futur Indikativ",            "Futuro pasivo",                         "Passivum Futurum Indicativum"),
    shell::englishToo("Passive Perfect Indicative",        "Passiv Perfekt Indikativ",          "Perfecto pasivo",                       "Passivum Perfectum Indicativum"),
    shell::englishToo("Passive Pluperfect Indicative",     "Passiv Plusquamperfekt Indikativ",  "Pluscuamperfecto pasivo",               "Passivum Plusquamperfectum Indicativum"),
    shell::englishToo("Passive Future Perfect Indicative", "Passiv Futur Perfekt Indikativ",    "Futuro de subjuntivo pasivo",           "Passivum Futurum Perfectum Indicativum"), // sic: Spanish
    shell::englishToo("Passive Present Subjunctive",       "Passiv Präsens Konjunktiv",         "Presente de subjuntivo pasivo",         "Passivum Praesens Subjunctivum"),
    shell::englishToo("Passive Imperfect Subjunctive",     "Passiv Imperfekt Konjunktiv",       "Imperfecto de subjuntivo pasivo",       "Passivum Imperfectum Subjunctivum"),
    shell::englishToo("Passive Perfect Subjunctive",       "Passiv Perfekt Konjunktiv",         "Perfecto de subjuntivo pasivo",         "Passivum Perfectum Subjunctivum"),
    shell::englishToo("Passive Pluperfect Subjunctive",    "Passiv Plusquamperfekt Konjunktiv", "Pluscuamperfecto de subjuntivo pasivo", "Passivum Plusquamperfectum Subjunctivum"),
};

/// The persons in the program's order, as the verb quiz names them. Spanish has the English words.
inline constexpr std::array NamesOfPersons = {
    //  English, French, Italian          German             Spanish            Latin
    shell::englishToo("1st Person Sing", "1. Person Sing.", "1st Person Sing", "Persona i Sing."),
    shell::englishToo("2nd Person Sing", "2. Person Sing.", "2nd Person Sing", "Persona ii Sing."),
    shell::englishToo("3rd Person Sing", "3. Person Sing.", "3rd Person Sing", "Persona iii Sing."),
    shell::englishToo("1st Person Plur", "1. Person Plur.", "1st Person Plur", "Persona i Plur."),
    shell::englishToo("2nd Person Plur", "2. Person Plur.", "2nd Person Plur", "Persona ii Plur."),
    shell::englishToo("3rd Person Plur", "3. Person Plur.", "3rd Person Plur", "Persona iii Plur."),
};

/// What a wrong answer is that another person of the tense has.
inline constexpr shell::LanguageTexts OtherPerson{"This is the ending of another person.", "C'est la terminaison d'une autre personne.", "È la desinenza di un'altra persona.", "Das ist die Endung einer anderen Person.", "Es la terminación de otra persona.", "Haec est desinentia alterius personae."};
// clang-format on

static_assert(NamesOfPersons.size() == verbs::PersonCount);
static_assert(NamesOfTenses.size() == verbs::BlockCount);

} // namespace verbdrills
