#include "verbdrills/windows/choosers.h"

#include "verbdrills/conjugation_choice.h"
#include "verbdrills/tense_names.h"
#include "verbs/paradigm.h"

#include <array>

namespace verbdrills {

namespace {

using shell::Caption;
using shell::ChooserNames;
using shell::englishToo;
using shell::LanguageTexts;

// Italian keeps the texts that the window is designed with.
// clang-format off
constexpr ChooserNames ConjugationNames = {
    .window = "ConjugationChoose", .active = "conjchoose", .list = "ConjugationList",
    .ok = "cchok", .cancel = "Command2", .frame = "CCBigFrame"};

constexpr std::array ConjugationCaptions = {
    //                             English                 French                           Italian  German                   Spanish                   Latin
    Caption{"ConjugationChoose",   {"Choose a Conjugation", "Choisez Vous une conjugation!", {}, "Eine Konjugation Auswählen", "Elegir una conjugatión", "Conjugationem elige!"}}, // sic: French and Spanish
    Caption{"ChooserHeading",      {"Choose a conjugation", "Choisissez une conjugaison",    {}, "Konjugation auswählen",      "Elija una conjugación",  "Conjugationem elige"}},
    Caption{"cchok",               {"&OK",                  "&Oui",                          {}, "&OK",                        "&Si",                    "&Ita"}},
    Caption{"Command2",            {"&Cancel",              "&Annule",                       {}, "&Abbruch",                   "&Cancelar",              "&Reverte!"}},
};

constexpr std::array ConjugationRows = {
    //            English                                 French                                 Italian  German                              Spanish                                 Latin
    LanguageTexts{"1st Conjugation (amo - ama:re)",       "Conjugation 1º (amo - ama:re)",       {}, "1. Konjugation (amo - ama:re)",       "1a Conjugatión (amo - ama:re)",        "Conjugatio Prima (amo - ama:re)"}, // sic: French and Spanish
    LanguageTexts{"2nd Conjugation (moneo - mone:re)",    "Conjugation 2º (moneo - mone:re)",    {}, "2. Konjugation (moneo - mone:re)",    "2a Conjugatión (moneo - mone:re)",     "Conjugatio Secunda (moneo - mone:re)"}, // sic: French and Spanish
    LanguageTexts{"3rd Conjugation (tendo -tendere)",     "Conjugation 3º (tendo -tendere)",     {}, "3. Konjugation (tendo -tendere)",     "3a Conjugatión (tendo -tendere)",      "Conjugatio Tertia (tendo -tendere)"}, // sic: French and Spanish
    LanguageTexts{"3rd Conjugation -io (jacio - jacere)", "Conjugation 3º -io (jacio - jacere)", {}, "3. Konjugation -io (jacio - jacere)", "3a Conjugatión -io (jacio - jacere)",  "Conjugatio Tertia -io (jacio - jacere)"}, // sic: French and Spanish
    LanguageTexts{"4th Conjugation (audio - audi:re)",    "Conjugation 4º (audio - audi:re)",    {}, "4. Konjugation (audio - audi:re)",    "4a Conjugatión (audio - audi:re)",     "Conjugatio Quarta (audio - audi:re)"}, // sic: French and Spanish
    LanguageTexts{"Esse (to be)",                         "Esse",                                {}, "Esse (sein)",                         "Esse (ser)",                           "Esse"},
    LanguageTexts{"Velle (wish, want)",                   "Velle",                               {}, "Velle (wollen)",                      "Velle (querer, desear)",               "Velle"},
    LanguageTexts{"Ferre (bear, carry)",                  "Ferre",                               {}, "Ferre (tragen)",                      "Ferre (llevar, sportar)",              "Ferre"}, // sic: Spanish
    LanguageTexts{"A PARTICULAR TENSE or MOOD",           "Tempus et Modum elige!",              {}, "EINE BESONDERE ZEITFORM",             "Elegir un timpo o modo en particular", "Tempus et Modum elige!"}, // sic: Spanish
};

static_assert(ConjugationRows.size() == ConjugationRowCount);

constexpr ChooserNames TenseNames = {
    .window = "TenseMoodChooser", .active = "tensemood", .list = "TenseMood",
    .ok = "TenseMoodOK", .cancel = "TenseMoodCancel", .frame = "TenseMoodFrame"};

constexpr std::array TenseCaptions = {
    //                                     English, French, Italian    German                         Spanish                   Latin
    Caption{"TenseMoodChooser", englishToo("Select a Tense/Mood",      "Eine Zeitform Auswählen",     "Elegir un timpo o modo", "Tempus et Modum elige!")}, // sic: Spanish
    Caption{"ChooserHeading",   englishToo("Choose a tense or mood",   "Zeitform auswählen",          "Elija un tiempo o modo", "Tempus et modum elige")},
    Caption{"TenseMoodOK",      englishToo("&OK",                      "&OK",                         "&Si",                    "&Sic")},
    Caption{"TenseMoodCancel",  englishToo("&Cancel",                  "&Abbruch",                    "&Cancelar",              "&Reverte!")},
};

struct TenseName {
    verbs::TenseBlock tense;
    LanguageTexts texts;
};

// The tenses that the quiz names otherwise.
constexpr std::array OwnTenseNames = {
    //                                                          English, French, Italian         German                              Spanish                        Latin
    TenseName{verbs::PerfectIndicative,              englishToo("Perfect Indicative",            "Perfekt Indikativ",                "Perfecto de indicativo",      "Praeteritum Perfectum Indicativum")},
    TenseName{verbs::PassivePresentIndicative,       englishToo("Passive Present Indicative",    "Passiv Präsens Indikativ",         "Presente pasivo",             "Passivum Praesens")},
    TenseName{verbs::PassiveImperfectIndicative,     englishToo("Passive Imperfect Indicative",  "Passiv Imperfekt Indikativ",       "Imperfecto pasivo",           "Passivum Imperfectum")},
    TenseName{verbs::PassiveFutureIndicative,        englishToo("Passive Future Indicative",     "Passiv Futur Indikativ",           "Futuro pasivo",               "Passivum Futurum")},
    TenseName{verbs::PassivePerfectIndicative,       englishToo("Passive Perfect Indicative",    "Passiv Perfekt Indikativ",         "Perfecto pasivo",             "Passivum Perfectum")},
    TenseName{verbs::PassivePluperfectIndicative,    englishToo("Passive Pluperfect Indicative", "Passiv Plusquamperfekt Indikativ", "Pluscuamperfecto pasivo",     "Passivum Plusquamperfectum")},
    TenseName{verbs::PassiveFuturePerfectIndicative, englishToo("Passive Future Perfect",        "Passiv Futur Perfekt",             "Futuro de subjuntivo pasivo", "Passivum Futurum Perfectum")}, // sic: Spanish
};
// clang-format on

constexpr auto namesOfTenses()
{
    auto names = NamesOfTenses;
    for (const auto& [tense, texts] : OwnTenseNames)
        names.at(static_cast<std::size_t>(tense - verbs::PresentIndicative)) = texts;
    return names;
}

constexpr auto TenseRows = namesOfTenses();

} // namespace

ConjugationChoose::ConjugationChoose() : Chooser(ConjugationNames, ConjugationCaptions, ConjugationRows) {}

void ConjugationChoose::beginChoice()
{
    beginConjugationChoice();
}

void ConjugationChoose::becameActive()
{
    fill();
}

TenseMoodChooser::TenseMoodChooser() : Chooser(TenseNames, TenseCaptions, TenseRows) {}

void TenseMoodChooser::beginChoice()
{
    beginTenseChoice();
}

} // namespace verbdrills
