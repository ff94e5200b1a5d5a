#include "verbdrills/gloss.h"
#include "verbs/paradigm.h"

#include <algorithm>
#include <array>

namespace verbdrills {

namespace {

using namespace verbs;

using Part = std::string_view GlossParts::*;

// A gloss is: opening, label, auxiliary, translation. The auxiliary is that of the first singular, of the
// third singular, or of the other persons.
struct GlossRow {
    TenseBlock block;
    std::string_view opening;
    std::string_view first;
    std::string_view third;
    std::string_view others;
    Part translation;
};

constexpr Part Base = &GlossParts::base;
constexpr Part Past = &GlossParts::past;
constexpr Part Participle = &GlossParts::participle;
constexpr Part Present = &GlossParts::presentParticiple;

// clang-format off
constexpr std::array<GlossRow, 19> Rows = {{
    //                               opening  1sg                   3sg                   others                translation
    {ImperfectIndicative,            "",      " was ",              " was ",              " were ",             Present},
    {FutureIndicative,               "",      " will ",             " will ",             " will ",             Base},
    {PerfectIndicative,              "",      " ",                  " ",                  " ",                  Past},
    {PluperfectIndicative,           "",      " had ",              " had ",              " had ",              Participle},
    {FuturePerfectIndicative,        "",      " will have ",        " will have ",        " will have ",        Participle},
    {PresentSubjunctive,             "If ",   " ",                  " ",                  " ",                  Base},
    {ImperfectSubjunctive,           "If ",   " was ",              " was ",              " was ",              Present},
    {PerfectSubjunctive,             "If ",   " would have ",       " would have ",       " would have ",       Participle},
    {PluperfectSubjunctive,          "If ",   " had ",              " had ",              " had ",              Participle},
    {PassivePresentIndicative,       "",      " am ",               " is ",               " are ",              Participle},
    {PassiveImperfectIndicative,     "",      " was being ",        " was being ",        " were being ",       Participle},
    {PassiveFutureIndicative,        "",      " will be ",          " will be ",          " will be ",          Participle},
    {PassivePerfectIndicative,       "",      " was ",              " was ",              " were ",             Participle},
    {PassivePluperfectIndicative,    "",      " had been ",         " had been ",         " had been ",         Participle},
    {PassiveFuturePerfectIndicative, "",      " will have been ",   " will have been ",   " will have been ",   Participle},
    {PassivePresentSubjunctive,      "if ",   " be ",               " be ",               " were ",             Participle}, // sic: a small letter
    {PassiveImperfectSubjunctive,    "if ",   " were ",             " were ",             " were ",             Participle}, // sic: a small letter
    {PassivePerfectSubjunctive,      "if ",   " would have been ",  " would have been ",  " would have been ",  Participle}, // sic: a small letter
    {PassivePluperfectSubjunctive,   "if ",   " had been ",         " had been ",         " had been ",         Participle}, // sic: a small letter
}};

// The perfects have a second half without a label of its own: "I loved,  have loved".
struct SecondHalf {
    TenseBlock block;
    std::string_view third;
    std::string_view others;
};

constexpr std::array<SecondHalf, 2> SecondHalves = {{
    //                         3sg            others
    {PerfectIndicative,        " has ",       " have "},
    {PassivePerfectIndicative, " has been  ", " have been "}, // sic: the blanks
}};

// The present of "be".
constexpr std::array<std::string_view, PersonCount> PresentOfBe = {" am", " are", " is", " are", " are", " are"};
// clang-format on

std::string withThirdPersonEnding(std::string_view base)
{
    constexpr std::string_view lettersWithEs = "zstd";
    const bool es =
        base.ends_with("ch") || (!base.empty() && lettersWithEs.find(base.back()) != std::string_view::npos);
    return std::string(base) + (es ? "es" : "s");
}

std::string presentGloss(int verbClass, int person, const GlossParts& parts)
{
    const std::string label(parts.label);
    if (verbClass == Esse)
        return label + std::string(PresentOfBe.at(static_cast<std::size_t>(person - 1)));
    if (person != ThirdSingular)
        return label + " " + std::string(parts.base);
    return label + (verbClass == Velle ? " wants" : " " + withThirdPersonEnding(parts.base));
}

std::string imperativeGloss(int person, const GlossParts& parts)
{
    const bool secondPerson = person == SecondSingular || person == SecondPlural;
    return secondPerson ? std::string(parts.base) + "!" : "";
}

std::string_view auxiliary(const GlossRow& row, int person)
{
    if (person == FirstSingular)
        return row.first;
    return person == ThirdSingular ? row.third : row.others;
}

std::string secondHalf(int block, int person, const GlossParts& parts)
{
    const auto half = std::ranges::find(SecondHalves, block, &SecondHalf::block);
    if (half == SecondHalves.end())
        return "";
    const std::string_view have = person == ThirdSingular ? half->third : half->others;
    return ", " + std::string(have) + std::string(parts.participle);
}

} // namespace

std::string englishGloss(int block, int verbClass, int person, const GlossParts& parts)
{
    if (block == PresentIndicative)
        return presentGloss(verbClass, person, parts);
    if (block == Imperative)
        return imperativeGloss(person, parts);
    const auto row = std::ranges::find(Rows, block, &GlossRow::block);
    if (row == Rows.end())
        return "";
    std::string gloss(row->opening);
    gloss.append(parts.label).append(auxiliary(*row, person)).append(parts.*row->translation);
    return gloss + secondHalf(block, person, parts);
}

} // namespace verbdrills
