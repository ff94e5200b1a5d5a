#include "verbs/paradigm_titles.h"

#include "shell/language_texts.h"
#include "shell/settings.h"
#include "verbs/paradigm.h"
#include "verbs/verb_tables.h"

#include <array>

namespace verbs {

namespace {

using shell::englishToo;
using shell::LanguageTexts;

// Classes 1 to 7; ferre has no title.
// clang-format off
constexpr std::array TitlesOfClasses = {
    //         English, French, Italian   German                   Spanish                            Latin
    englishToo("First Conjugation",       "1. Konjugation",       "Primera Conjugatión",            "Conjugatio I"),
    englishToo("Second Conjugation",      "2. Konjugation",       "Segunda Conjugatión",            "Conjugatio II"),
    englishToo("Third Conjugation",       "3. Konjugation",       "Tercera Conjugatión",            "Conjugatio III"),
    englishToo("Fourth Conjugation",      "4. Konjugation",       "Cuarta Conjugatión",             "Conjugatio IV"),
    englishToo("Third Conjugation (-io)", "3. Konjugation (-io)", "Cuarta Conjugatión mixta (-io)", "Conjugatio III (-io)"),
    englishToo("Velle",                   "Velle (wollen)",       "Velle",                          "Velle"), // sic: class 6 is esse
    englishToo("Esse",                    "Esse (sein)",          "Esse",                           "Esse"),  // sic: class 7 is velle
};

constexpr std::array TitlesOfTenses = {
    //         English, French, Italian       German                                Spanish                                 Latin
    englishToo("Present Indicative",             "Präsens Indikativ",                 "Presente de indicativo",                "Praesens Indicativum"),
    englishToo("Imperfect Indicative",           "Imperfekt Indikativ",               "Imperfecto de indicativo",              "Imperfectum Indicativum"),
    englishToo("Future Indicative",              "Futur Indikativ",                   "Futuro de indicativo",                  "Futurum Indicativum"),
    englishToo("Perfect Indicative",             "Perfekt Indikativ",                 "Perfecto de indicativo",                "Perfectum Indicativum"),
    englishToo("Pluperfect Indicative",          "Plusquamperfekt Indikativ",         "Pluscuamperfecto de indicativo",        "Plusquamperfectum Indicativum"),
    englishToo("Future Perfect Indicative",      "Futur Perfekt Indikativ",           "Futuro perfecto de indicativo",         "Futurum Perfectum Indicativum"),
    englishToo("Present Subjunctive",            "Präsens Konjunktiv",                "Presente subjuntivo",                   "Praesens Subjunctivum"),
    englishToo("Imperfect Subjunctive",          "Imperfekt Konjunktiv",              "Imperfecto de subjuntivo",              "Imperfectum Subjunctivum"),
    englishToo("Perfect Subjunctive",            "Perfekt Konjunktiv",                "Perfecto de subjuntivo",                "Perfectum Subjunctivum"),
    englishToo("Pluperfect Subjunctive",         "Plusquamperfekt Konjunktiv",        "Pluscuamperfecto de subjuntivo",        "Plusquam Perfectum Subjunctivum"),
    englishToo("Imperative",                     "Imperativ",                         "Imperativo",                            "Imperativus Modus"),
    englishToo("Passive Present",                "Passiv Präsens",                    "Presente pasivo",                       "Passivum Praesens"),
    englishToo("Passive Imperfect",              "Passiv Imperfekt",                  "Imperfecto pasivo",                     "Passivum Imperfectum Indicativum"),
    englishToo("Passive Future",                 "Passiv Futur",                      "Futuro pasivo",                         "Passivum Futurum Indicativum"),
    englishToo("Passive Perfect",                "Passiv Perfekt Indikativ",          "Perfecto pasivo",                       "Passivum Perfectum Indicativum"),
    englishToo("Passive Pluperfect",             "Passiv Plusquamperfekt Indikativ",  "Pluscuamperfecto pasivo",               "Passivum Plusquamperfectum Indicativum"),
    englishToo("Passive Future Perfect",         "Passiv Futur Perfekt Indikativ",    "Futuro perfecto pasivo",                "Passivum Futurum Perfectum Indicativum"),
    englishToo("Passive Present Subjunctive",    "Passiv Präsens Konjunktiv",         "Presente de subjuntivo pasivo",         "Passivum Praesens Subjunctivum"),
    englishToo("Passive Imperfect Subjunctive",  "Passiv Imperfekt Konjunktiv",       "Imperfecto de subjuntivo pasivo",       "Passivum Imperfectum Subjunctivum"),
    englishToo("Passive Perfect Subjunctive",    "Passiv Perfekt Konjunktiv",         "Perfecto de subjuntivo pasivo",         "Passivum Perfectum Subjunctivum"),
    englishToo("Passive Pluperfect Subjunctive", "Passiv Plusquamperfekt Konjunktiv", "Pluscuamperfecto de subjuntivo pasivo", "Passivum Plusquamperfectum Subjunctivum"),
};
// clang-format on

static_assert(TitlesOfClasses.size() == Velle);
static_assert(TitlesOfTenses.size() == BlockCount);

constexpr Persons EnglishPersons = {"I", "you", "he, she, it", "we", "all of you", "they"};

void setClassTitle(int verbClass)
{
    if (verbClass < FirstConjugation || verbClass > Velle)
        return;
    const auto& titles = TitlesOfClasses.at(static_cast<std::size_t>(verbClass - FirstConjugation));
    if (const auto title = titles.in(shell::settings.CurrentLanguage))
        verbTables.ClassTitles[verbClass] = *title;
}

void setTenseTitles()
{
    int block = PresentIndicative;
    for (const LanguageTexts& titles : TitlesOfTenses) {
        if (const auto title = titles.in(shell::settings.CurrentLanguage))
            verbTables.TenseTitles[block] = *title;
        ++block;
    }
}

// The verb label names the verb that is drilled, where the class title names the other one.
void showIrregularVerb(std::string_view verb)
{
    currentParadigm.WindowTitle.clear();
    currentParadigm.VerbLabel = verb;
}

} // namespace

void setParadigmTitles()
{
    const int verbClass = currentParadigm.ConjugationCode;
    setClassTitle(verbClass);
    setTenseTitles();
    currentParadigm.TenseLabel = verbTables.TenseTitles[currentParadigm.TenseMoodCode];
    currentParadigm.WindowTitle = verbTables.ClassTitles[verbClass];
    if (verbClass == Esse)
        showIrregularVerb("Esse");
    if (verbClass == Velle)
        showIrregularVerb("Velle");
}

void setPersonLabels()
{
    const bool german = shell::settings.CurrentLanguage == shell::language::German;
    int person = FirstSingular;
    for (const std::string_view label : german ? GermanPersons : EnglishPersons)
        verbTables.PersonLabels[person++] = label;

    setParadigmTitles();
    const int verbClass = currentParadigm.ConjugationCode;
    currentParadigm.TenseLabel =
        verbTables.ClassTitles[verbClass] + verbTables.TenseTitles[currentParadigm.TenseMoodCode];
    currentParadigm.VerbLabel = verbTables.Infinitive[verbClass];
}

} // namespace verbs
