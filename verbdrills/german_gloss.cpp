#include "verbdrills/gloss.h"
#include "verbs/paradigm.h"

#include <algorithm>
#include <array>

namespace verbdrills {

namespace {

using namespace verbs;

using Part = std::string_view GlossParts::*;
using SixPersons = std::array<std::string_view, PersonCount>;

constexpr Part Base = &GlossParts::base;
constexpr Part Past = &GlossParts::past;
constexpr Part Participle = &GlossParts::participle;

// The auxiliaries and endings, first to third singular, first to third plural.
// clang-format off
constexpr SixPersons None            = {"", "", "", "", "", ""};
constexpr SixPersons PresentEndings  = {"e", "st", "t", "en", "t", "en"};
constexpr SixPersons PastEndings     = {"", "st", "", "n", "t", "n"};
constexpr SixPersons SubjEndings     = {"e", "est", "e", "en", "et", "en"};
constexpr SixPersons Infinitive      = {"en", "en", "en", "en", "en", "en"};
constexpr SixPersons Bin             = {" bin", " bist", " ist", " sind", " seid", " sind"};
constexpr SixPersons Will            = {" will", " willst", " will", " wollen", " wollt", " wollen"};
constexpr SixPersons Werde           = {" werde ", " wirst ", " wird ", " werden ", " werdet ", " werden "};
constexpr SixPersons Habe            = {" habe ", " hast ", " hat ", " haben ", " habt ", " haben "};
constexpr SixPersons BinPerfect      = {" bin ", " bist ", " ist ", " sind ", " seid ", " sind "};
constexpr SixPersons Hatte           = {" hatte ", " hattest ", " hatte ", " hatten ", " hattet ", " hatten "};
constexpr SixPersons War             = {" war ", " warst ", " war ", " waren ", " wart ", " waren "};
constexpr SixPersons Wurde           = {" wurde ", " wurdest ", " wurde ", " wurden ", " wurdet ", " wurden "};
constexpr SixPersons HabeSubj        = {" habe ", " habest ", " habe ", " haben ", " habet ", " haben "};
constexpr SixPersons Haette          = {" hätte ", " hättest ", " hätte ", " hätten ", " hättet ", " hätten "};
constexpr SixPersons WerdeSubj       = {" werde ", " werdest ", " werde ", " werden ", " werdet ", " werden "};
constexpr SixPersons Wuerde          = {" würde ", " würdest ", " würde ", " würden ", " würdet ", " würden "};
constexpr SixPersons Sei             = {" sei ", " seist ", " sei ", " seien ", " seiet ", " seien "};
constexpr SixPersons Waere           = {" wäre ", " wärest ", " wäre ", " wären ", " wäret ", " wären "};
constexpr SixPersons WaerePerfect    = {" wäre ", " wärst ", " wäre ", " wären ", " wärt ", " wären "};
constexpr SixPersons SeiGluecklich   = {" sei (glücklich)", " seist (glücklich)", " sei (glücklich)",
                                        " seien (glücklich)", " seiet (glücklich)", " seien (glücklich)"};
constexpr SixPersons WaereGluecklich = {" wäre (glücklich)", " wärst  (glücklich)", " wäre (glücklich)", // sic: two blanks
                                        " wären (glücklich)", " wärt (glücklich)", " wären (glücklich)"};

constexpr std::string_view Indirect = "(Sie glaubt,) ";

// A gloss is: opening, pronoun, auxiliary, translation, its ending, close.
struct GlossRow {
    TenseBlock block;
    std::string_view opening;
    SixPersons auxiliary;
    Part translation;
    SixPersons ending;
    std::string_view close;
};

constexpr SixPersons Blank = {" ", " ", " ", " ", " ", " "};

constexpr std::array<GlossRow, 20> Rows = {{
    {PresentIndicative,              "",       Blank,        Base,       PresentEndings, ""},
    {ImperfectIndicative,            "",       Blank,        Past,       PastEndings,    ""},
    {FutureIndicative,               "",       Werde,        Base,       Infinitive,     ""},
    {PerfectIndicative,              "",       Habe,         Participle, None,           ""},
    {PluperfectIndicative,           "",       Hatte,        Participle, None,           ""},
    {FuturePerfectIndicative,        "",       Werde,        Participle, None,           " haben"},
    {PresentSubjunctive,             Indirect, Blank,        Base,       SubjEndings,    ""},
    {ImperfectSubjunctive,           Indirect, Wuerde,       Base,       Infinitive,     ""},
    {PerfectSubjunctive,             Indirect, HabeSubj,     Participle, None,           ""},
    {PluperfectSubjunctive,          Indirect, Haette,       Participle, None,           ""},
    {PassivePresentIndicative,       "",       Werde,        Participle, None,           ""},
    {PassiveImperfectIndicative,     "",       Wurde,        Participle, None,           ""},
    {PassiveFutureIndicative,        "",       Werde,        Participle, None,           " werden"},
    {PassivePerfectIndicative,       "",       BinPerfect,   Participle, None,           " worden"},
    {PassivePluperfectIndicative,    "",       War,          Participle, None,           " worden"},
    {PassiveFuturePerfectIndicative, "",       Werde,        Participle, None,           " worden sein"},
    {PassivePresentSubjunctive,      Indirect, WerdeSubj,    Participle, None,           ""},
    {PassiveImperfectSubjunctive,    Indirect, Wuerde,       Participle, None,           ""},
    {PassivePerfectSubjunctive,      Indirect, Sei,          Participle, None,           " worden"},
    {PassivePluperfectSubjunctive,   Indirect, WaerePerfect, Participle, None,           " worden"},
}};

// sein has words of its own throughout.
struct EsseRow {
    TenseBlock block;
    std::string_view opening;
    SixPersons auxiliary;
    std::string_view close;
};

constexpr std::array<EsseRow, 10> EsseRows = {{
    {PresentIndicative,       "",       Bin,             ""},
    {ImperfectIndicative,     "",       War,             "(glücklich) "},
    {FutureIndicative,        "",       Werde,           "(glücklich) sein"},
    {PerfectIndicative,       "",       BinPerfect,      "(glücklich) gewesen"},
    {PluperfectIndicative,    "",       War,             "(glücklich) gewesen"},
    {FuturePerfectIndicative, "",       Werde,           "(glücklich) gewesen sein"},
    {PresentSubjunctive,      Indirect, SeiGluecklich,   ""},
    {ImperfectSubjunctive,    Indirect, WaereGluecklich, ""},
    {PerfectSubjunctive,      Indirect, Sei,             "(glücklich) gewesen"},
    {PluperfectSubjunctive,   Indirect, Waere,           "(glücklich) gewesen"},
}};
// clang-format on

std::string_view of(const SixPersons& persons, int person)
{
    return persons.at(static_cast<std::size_t>(person - 1));
}

std::string imperativeGloss(int verbClass, int person, const GlossParts& parts)
{
    if (person != SecondSingular && person != SecondPlural)
        return "";
    if (verbClass == Esse)
        return person == SecondSingular ? "sei (glücklich)!" : "seid (glücklich)!";
    return std::string(parts.base) + (person == SecondSingular ? "!" : "t!");
}

std::string esseGloss(int block, int person, std::string_view pronoun)
{
    const auto row = std::ranges::find(EsseRows, block, &EsseRow::block);
    if (row == EsseRows.end())
        return "";
    std::string gloss(row->opening);
    return gloss.append(pronoun).append(of(row->auxiliary, person)).append(row->close);
}

} // namespace

std::string germanGloss(int block, int verbClass, int person, const GlossParts& parts)
{
    if (block == Imperative)
        return imperativeGloss(verbClass, person, parts);
    if (verbClass == Esse)
        return esseGloss(block, person, parts.label);
    if (verbClass == Velle && block == PresentIndicative)
        return std::string(parts.label) + std::string(of(Will, person));
    const auto row = std::ranges::find(Rows, block, &GlossRow::block);
    if (row == Rows.end())
        return "";
    std::string gloss(row->opening);
    gloss.append(parts.label).append(of(row->auxiliary, person)).append(parts.*row->translation);
    return gloss.append(of(row->ending, person)).append(row->close);
}

} // namespace verbdrills
