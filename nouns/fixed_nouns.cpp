#include "nouns/fixed_nouns.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <array>

namespace nouns {

namespace {

constexpr shell::LanguageTexts meaning(std::string_view english, std::string_view german,
                                       std::string_view spanish)
{
    return shell::englishToo(english, german, spanish, "");
}

// clang-format off
//              stem    gender       English, French, Italian  German              Spanish
constexpr std::array FourthDeclensionNouns = {
    FixedNoun{"fru:ct", "m", meaning("fruit",         "Obst",             "fruto")},
    FixedNoun{"man",    "f", meaning("hand",          "Hand",             "mano")},
    FixedNoun{"met",    "m", meaning("fear",          "Furcht",           "miedo")},
    FixedNoun{"pass",   "m", meaning("step",          "Treppe",           "paso")},
    FixedNoun{"vers",   "m", meaning("a verse",       "ein Vers",         "verso")},
};

constexpr std::array FourthDeclensionNeuterNouns = {
    FixedNoun{"corn",   "n", meaning("horn",          "Horn",             "cuerno")},
    FixedNoun{"gen",    "n", meaning("knee",          "Knie",             "rodilla")},
};

constexpr std::array FifthDeclensionNouns = {
    FixedNoun{"r",      "f", meaning("thing",         "Ding, Sache",      "cosa")},
    FixedNoun{"di",     "f", meaning("day",           "Tag",              "día")},
    FixedNoun{"sp",     "f", meaning("hope",          "Hoffnung",         "esperanza")},
    FixedNoun{"fid",    "f", meaning("faith",         "Glaube",           "fe")},
    FixedNoun{"speci",  "f", meaning("sight; beauty", "Sicht, Schönheit", "visión, belleza")},
    FixedNoun{"qui",    "f", meaning("quiet",         "Ruhe",             "quietud")},
    FixedNoun{"requi",  "f", meaning("rest",          "Rast",             "descanso")},
};
// clang-format on

constexpr int FourthDeclensionNeuterSlots = 5;

} // namespace

FixedNouns fixedNounsOf(int paradigm)
{
    switch (paradigm) {
    case FourthDeclension:
        return {FourthDeclensionNouns, "us -us", static_cast<int>(FourthDeclensionNouns.size())};
    case FourthDeclensionNeuter:
        return {FourthDeclensionNeuterNouns, "u -us", FourthDeclensionNeuterSlots};
    case FifthDeclension:
        return {FifthDeclensionNouns, "es", static_cast<int>(FifthDeclensionNouns.size())};
    default:
        return {};
    }
}

std::string genderNote(const FixedNoun& noun)
{
    return " (" + std::string(noun.gender) + ")";
}

NounRecord fixedNounAt(int paradigm, int number)
{
    const FixedNoun& noun = fixedNounsOf(paradigm).nouns[static_cast<std::size_t>(number - 1)];
    const auto inLanguage = [&](std::string_view language) {
        return std::string(noun.meaning.in(language).value_or(""));
    };
    namespace language = shell::language;
    return {
        .note = genderNote(noun),
        .stem = shell::stemAsShown(noun.stem),
        .obliqueStem = {},
        .meanings = {
            inLanguage(language::English), inLanguage(language::German), {}, inLanguage(language::Spanish)}};
}

} // namespace nouns
