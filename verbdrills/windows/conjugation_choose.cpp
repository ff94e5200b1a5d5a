#include "verbdrills/windows/conjugation_choose.h"

#include "verbdrills/conjugation_choice.h"

#include <array>

namespace verbdrills {

namespace {

using shell::Caption;
using shell::LanguageTexts;

// Italian keeps the texts that the window is designed with.
// clang-format off
constexpr std::array Captions = {
    //                             English                 French                           Italian  German                   Spanish                   Latin
    Caption{"ConjugationChoose",   {"Choose a Conjugation", "Choisez Vous une conjugation!", {}, "Eine Konjugation Auswählen", "Elegir una conjugatión", "Conjugationem elige!"}}, // sic: French and Spanish
    Caption{"cchok",               {"&OK",                  "&Oui",                          {}, "&OK",                        "&Si",                    "&Ita"}},
    Caption{"Command2",            {"&Cancel",              "&Annule",                       {}, "&Abbruch",                   "&Cancelar",              "&Reverte!"}},
};

constexpr std::array<LanguageTexts, ConjugationRowCount> Rows = {{
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
}};
// clang-format on

} // namespace

ConjugationChoose::ConjugationChoose()
    : Chooser({.window = "ConjugationChoose",
               .active = "conjchoose",
               .list = "ConjugationList",
               .ok = "cchok",
               .cancel = "Command2",
               .frame = "CCBigFrame"},
              Captions, Rows)
{
}

void ConjugationChoose::beginChoice()
{
    beginConjugationChoice();
}

void ConjugationChoose::becameActive()
{
    fill();
}

} // namespace verbdrills
