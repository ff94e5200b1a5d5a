#include "verbdrills/quiz_texts.h"

#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

using shell::englishToo;
using shell::LanguageTexts;

namespace {

// clang-format off
constexpr std::array<LanguageTexts, verbs::LastClass> ClassNames = {{
    //         English, French, Italian   German                  Spanish                            Latin
    englishToo("First Conjugation",       "1. Konjugation",       "Primera conjugatión",             "Conjugation I"), // sic: English
    englishToo("Second Conjugation",      "2. Konjugation",       "Segunda conjugatión",             "Conjugatio II"),
    englishToo("Third Conjugation",       "3. Konjugation",       "Tercera conjugatión",             "Conjugatio III"),
    englishToo("Fourth Conjugation",      "4. Konjugation",       "Cuarta conjugatión",              "Conjugatio IV"),
    englishToo("Third Conjugation (-io)", "3. Konjugation (-io)", "Tercera conjugatión mixta (-io)", "Conjugatio III (-io)"),
    englishToo("Esse",                    "Esse (sein)",          "Esse",                            "Esse"),
    englishToo("Velle",                   "Velle (wollen)",       "Velle",                           "Velle"),
    englishToo("Ferre",                   "Ferre (tragen)",       "Ferre",                           "Ferre"),
}};

// Apart from some names these are the tenses of the chooser.
constexpr std::array<LanguageTexts, verbs::BlockCount> TenseNames = {{
    //         English, French, Italian             German                               Spanish                                  Latin
    englishToo("Present Indicative",                "Präsens Indikativ",                 "Presente de indicativo",                "Praesens Indicativum"),
    englishToo("Imperfect Indicative",              "Imperfekt Indikativ",               "Imperfecto de indicativo",              "Imperfectum Indicativum"),
    englishToo("Future Indicative",                 "Futur Indikativ",                   "Futuro de indicativo",                  "Futurum Indicativum"),
    englishToo("Perfect Indicative",                "Perfekt Indikativ",                 "Perfecto de indicativo",                "Perfectum Indicativum"),
    englishToo("Pluperfect Indicative",             "Plusquamperfekt Indikativ",         "Pluscuamperfecto de indicativo",        "Plusquam Perfectum Indicativum"),
    englishToo("Future Perfect Indicative",         "Futur Perfekt Indikativ",           "Futuro perfecto de indicativo",         "Futurum Perfectum Indicativum"),
    englishToo("Present Subjunctive",               "Präsens Konjunktiv",                "Presente subjuntivo",                   "Praesens Subjunctivum"),
    englishToo("Imperfect Subjunctive",             "Imperfekt Konjunktiv",              "Imperfecto de subjuntivo",              "Imperfectum Subjunctivum"),
    englishToo("Perfect Subjunctive",               "Perfekt Konjunktiv",                "Perfecto de subjuntivo",                "Perfectum Subjunctivum"),
    englishToo("Pluperfect Subjunctive",            "Plusquamperfekt Konjunktiv",        "Pluscuamperfecto de subjuntivo",        "Plusquamperfectum Subjunctivum"),
    englishToo("Imperative",                        "Imperativ",                         "Imperativo",                            "Imperativus Modus"),
    englishToo("Passive Present Indicative",        "Passiv Präsens Indikativ",          "Presente pasivo",                       "Passivum Praesens Indicativum"),
    englishToo("Passive Imperfect Indicative",      "Passiv Imperfekt Indikativ",        "Imperfecto pasivo",                     "Passivum Imperfectum Indicativum"),
    englishToo("Passive Future Indicative",         "Passiv Futur Indikativ",            "Futuro pasivo",                         "Passivum Futurum Indicativum"),
    englishToo("Passive Perfect Indicative",        "Passiv Perfekt Indikativ",          "Perfecto pasivo",                       "Passivum Perfectum Indicativum"),
    englishToo("Passive Pluperfect Indicative",     "Passiv Plusquamperfekt Indikativ",  "Pluscuamperfecto pasivo",               "Passivum Plusquamperfectum Indicativum"),
    englishToo("Passive Future Perfect Indicative", "Passiv Futur Perfekt Indikativ",    "Futuro de subjuntivo pasivo",           "Passivum Futurum Perfectum Indicativum"), // sic: subjuntivo
    englishToo("Passive Present Subjunctive",       "Passiv Präsens Konjunktiv",         "Presente de subjuntivo pasivo",         "Passivum Praesens Subjunctivum"),
    englishToo("Passive Imperfect Subjunctive",     "Passiv Imperfekt Konjunktiv",       "Imperfecto de subjuntivo pasivo",       "Passivum Imperfectum Subjunctivum"),
    englishToo("Passive Perfect Subjunctive",       "Passiv Perfekt Konjunktiv",         "Perfecto de subjuntivo pasivo",         "Passivum Perfectum Subjunctivum"),
    englishToo("Passive Pluperfect Subjunctive",    "Passiv Plusquamperfekt Konjunktiv", "Pluscuamperfecto de subjuntivo pasivo", "Passivum Plusquamperfectum Subjunctivum"),
}};

// Spanish has the English words.
constexpr std::array<LanguageTexts, 3> PersonTexts = {{
    // English, French, Italian  German     Spanish        Latin
    englishToo("1st Person ",   "1. Person ", "1st Person ", "Persona i "),
    englishToo("2nd Person ",   "2. Person ", "2nd Person ", "Persona ii "),
    englishToo("3rd Person ",   "3. Person ", "3rd Person ", "Persona iii "),
}};
constexpr LanguageTexts SingularText = englishToo("Sing, ", "Sing., ", "Sing, ", "Sing., ");
constexpr LanguageTexts PluralText   = englishToo("Plur, ", "Plur., ", "Plur, ", "Plur., ");
// clang-format on

constexpr std::string_view Separator = ", ";

std::string_view chosenName(std::span<const LanguageTexts> names, int row)
{
    return row < 0 ? std::string_view() : names[static_cast<std::size_t>(row)].currentOrDesigned();
}

} // namespace

std::span<const LanguageTexts> quizClassNames()
{
    return ClassNames;
}

std::span<const LanguageTexts> quizTenseNames()
{
    return TenseNames;
}

std::string describe(const Identification& identification)
{
    const bool plural = identification.number == quiz_number::Plural;
    std::string text(PersonTexts.at(static_cast<std::size_t>(identification.person - 1)).currentOrDesigned());
    text += (plural ? PluralText : SingularText).currentOrDesigned();
    text += chosenName(ClassNames, identification.classRow);
    if (identification.classRow >= 0 && identification.tenseRow >= 0)
        text += Separator;
    text += chosenName(TenseNames, identification.tenseRow);
    return text;
}

} // namespace verbdrills
