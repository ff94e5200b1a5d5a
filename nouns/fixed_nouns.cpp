#include "nouns/fixed_nouns.h"

#include "shell/vowel_marks.h"

#include <array>

namespace nouns {

using shell::englishToo;

namespace {

constexpr std::string_view BeforeMeaning = "= ";

// clang-format off
//                       English, French, Italian        German                     Spanish                   Latin
constexpr std::array FourthDeclensionNouns = {
    FixedNoun{"fru:ct", englishToo(" (m) = fruit",   " (m) = Obst",     " (m) = fruto", " (m)")},
    FixedNoun{"man",    englishToo(" (f) = hand",    " (f) = Hand",     " (f) = mano",  " (f)")},
    FixedNoun{"met",    englishToo(" (m) = fear",    " (m) = Furcht",   " (m) = miedo", " (m)")},
    FixedNoun{"pass",   englishToo(" (m) = step",    " (m) = Treppe",   " (m) = paso",  " (m)")},
    FixedNoun{"vers",   englishToo(" (m) = a verse", " (m) = ein Vers", " (m) = verso", " (m)")},
};

constexpr std::array FourthDeclensionNeuterNouns = {
    FixedNoun{"corn", englishToo(" (n) = horn", " (n) = Horn", " (n) = cuerno",  " (n)")},
    FixedNoun{"gen",  englishToo(" (n) = knee", " (n) = Knie", " (n) = rodilla", " (n)")},
};

constexpr std::array FifthDeclensionNouns = {
    FixedNoun{"r",     englishToo(" (f) = thing",         " (f) = Ding, Sache",      " (f) = cosa",            " (f)")},
    FixedNoun{"di",    englishToo(" (f) = day",           " (f) = Tag",              " (f) = día",             " (f)")},
    FixedNoun{"sp",    englishToo(" (f) = hope",          " (f) = Hoffnung",         " (f) = esperanza",       " (f)")},
    FixedNoun{"fid",   englishToo(" (f) = faith",         " (f) = Glaube",           " (f) = fe",              " (f)")},
    FixedNoun{"speci", englishToo(" (f) = sight; beauty", " (f) = Sicht, Schönheit", " (f) = visión, belleza", " (f)")},
    FixedNoun{"qui",   englishToo(" (f) = quiet",         " (f) = Ruhe",             " (f) = quietud",         " (f)")},
    FixedNoun{"requi", englishToo(" (f) = rest",          " (f) = Rast",             " (f) = descanso",        " (f)")},
};
// clang-format on

constexpr int FourthDeclensionNeuterSlots = 5;

std::string meaningIn(std::string_view genderAndMeaning)
{
    const std::size_t found = genderAndMeaning.find(BeforeMeaning);
    if (found == std::string_view::npos)
        return {};
    return std::string(genderAndMeaning.substr(found + BeforeMeaning.size()));
}

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

NounRecord fixedNounAt(int paradigm, int number)
{
    const FixedNoun& noun = fixedNounsOf(paradigm).nouns[static_cast<std::size_t>(number - 1)];
    const auto& [stem, texts] = noun;
    const auto meaning = [](const auto& text) { return meaningIn(text.value_or("")); };
    return {.note = std::string(texts.latin.value_or("")),
            .stem = shell::stemAsShown(stem),
            .obliqueStem = {},
            .meanings = {meaning(texts.english), meaning(texts.german), {}, meaning(texts.spanish)}};
}

} // namespace nouns
