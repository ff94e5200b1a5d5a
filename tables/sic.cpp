#include "tables/sic.h"

#include "nouns/noun_endings.h"
#include "nouns/noun_forms.h"
#include "shell/vowel_marks.h"
#include "tables/noun_table.h"
#include "verbs/paradigm.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace tables {

namespace {

using namespace nouns;
using namespace verbs;
using enum WordKind;

// One cell of a grammar's page. The stem that it is for is written as a grammar would: "-" for every stem,
// "-duc" for those that end so, "de" for this one; without marks. The ending is that behind the word's stem,
// in an irregular verb the whole form.
struct CellOfGrammar {
    WordKind kind;
    int paradigm;
    std::string_view stem;
    int cell;
    std::string_view ending;
};

constexpr int cellOf(TenseBlock block, Person person)
{
    return formNumber(block, person);
}

// clang-format off
// The first row for a cell counts.
constexpr std::array Cells = {
    // ama:tur, but amantur.
    CellOfGrammar{Verb, FirstConjugation,   "-",    cellOf(PassivePresentIndicative,   ThirdPlural),    "antur"},
    CellOfGrammar{Verb, FirstConjugation,   "-",    cellOf(PassivePresentSubjunctive,  ThirdPlural),    "entur"},
    // regimus and regitis have the short i of regit.
    CellOfGrammar{Verb, ThirdConjugation,   "-",    cellOf(PresentIndicative,          FirstPlural),    "imus"},
    CellOfGrammar{Verb, ThirdConjugation,   "-",    cellOf(PresentIndicative,          SecondPlural),   "itis"},
    // di:c, du:c, fac, and what is composed of them: addu:c.
    CellOfGrammar{Verb, ThirdConjugation,   "-dic", cellOf(Imperative,                 SecondSingular), ""},
    CellOfGrammar{Verb, ThirdConjugation,   "-duc", cellOf(Imperative,                 SecondSingular), ""},
    CellOfGrammar{Verb, ThirdIoConjugation, "-fac", cellOf(Imperative,                 SecondSingular), ""},
    CellOfGrammar{Verb, ThirdIoConjugation, "-",    cellOf(PassivePresentSubjunctive,  ThirdPlural),    "iantur"},
    CellOfGrammar{Verb, FourthConjugation,  "-",    cellOf(ImperfectIndicative,        SecondPlural),   "ie:ba:tis"},
    // sci:re has the imperatives of the future.
    CellOfGrammar{Verb, FourthConjugation,  "sc",   cellOf(Imperative,                 SecondSingular), "i:to:"},
    CellOfGrammar{Verb, FourthConjugation,  "sc",   cellOf(Imperative,                 SecondPlural),   "i:to:te"},
    CellOfGrammar{Verb, FourthConjugation,  "-",    cellOf(Imperative,                 SecondPlural),   "i:te"},
    CellOfGrammar{Verb, FourthConjugation,  "-",    cellOf(PassivePresentIndicative,   SecondPlural),   "i:mini:"},
    CellOfGrammar{Verb, FourthConjugation,  "-",    cellOf(PassivePresentSubjunctive,  ThirdPlural),    "iantur"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, FirstSingular),  "fere:bar"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, SecondSingular), "fere:ba:ris"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, ThirdSingular),  "fere:ba:tur"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, FirstPlural),    "fere:ba:mur"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, SecondPlural),   "fere:ba:mini:"},
    CellOfGrammar{Verb, Ferre,              "-",    cellOf(PassiveImperfectIndicative, ThirdPlural),    "fere:bantur"},
    // dea:bus and fi:lia:bus, wherever they stand in their list; no other noun in their place.
    CellOfGrammar{Noun, FirstDeclension,    "de",   DativePlural,       "a:bus"},
    CellOfGrammar{Noun, FirstDeclension,    "de",   AblativePlural,     "a:bus"},
    CellOfGrammar{Noun, FirstDeclension,    "fili", DativePlural,       "a:bus"},
    CellOfGrammar{Noun, FirstDeclension,    "fili", AblativePlural,     "a:bus"},
    CellOfGrammar{Noun, FirstDeclension,    "-",    DativePlural,       "i:s"},
    CellOfGrammar{Noun, FirstDeclension,    "-",    AblativePlural,     "i:s"},
    // die:i:, but rei:, spei:, fidei:, with the e short behind a consonant.
    CellOfGrammar{Noun, FifthDeclension,    "r",    GenitiveSingular,   "ei:"},
    CellOfGrammar{Noun, FifthDeclension,    "r",    DativeSingular,     "ei:"},
    CellOfGrammar{Noun, FifthDeclension,    "sp",   GenitiveSingular,   "ei:"},
    CellOfGrammar{Noun, FifthDeclension,    "sp",   DativeSingular,     "ei:"},
    CellOfGrammar{Noun, FifthDeclension,    "fid",  GenitiveSingular,   "ei:"},
    CellOfGrammar{Noun, FifthDeclension,    "fid",  DativeSingular,     "ei:"},
    // requie:s has but requiem and requie: of the fifth declension.
    CellOfGrammar{Noun, FifthDeclension,    "requi", GenitiveSingular,  "e:tis"},
    CellOfGrammar{Noun, FifthDeclension,    "requi", DativeSingular,    "e:ti:"},
};

// A noun that a grammar declines with another stem or on another page than its list; its nominative is the
// same. The stem in the list is without marks.
struct NounOfGrammar {
    NounParadigm paradigm;
    std::string_view listedStem;
    NounParadigm page;
    std::string_view stem;
    std::span<const EndingException> exceptions;
};

constexpr std::array Nouns = {
    // puer, pueri:, which keep their e.
    NounOfGrammar{SecondDeclensionEr,    "pu",     SecondDeclensionUs,    "puer",    {}},
    NounOfGrammar{SecondDeclensionEr,    "soc",    SecondDeclensionUs,    "socer",   {}},
    NounOfGrammar{SecondDeclensionEr,    "gen",    SecondDeclensionUs,    "gener",   {}},
    NounOfGrammar{SecondDeclensionEr,    "vesp",   SecondDeclensionUs,    "vesper",  {}},
    // quie:s, quie:tis.
    NounOfGrammar{FifthDeclension,       "qui",    ThirdDeclension,       "quie:t",  {}},
    // What the drill leaves of these is their endings.
    NounOfGrammar{ThirdDeclensionNeuter, "corpus", ThirdDeclensionNeuter, "corpor",  {}},
    NounOfGrammar{ThirdDeclensionNeuter, "nomen",  ThirdDeclensionNeuter, "no:min",  {}},
    NounOfGrammar{ThirdDeclensionNeuter, "caput",  ThirdDeclensionNeuter, "capit",   {}},
    NounOfGrammar{ThirdDeclensionNeuter, "mare",   ThirdDeclensionNeuter, "mar",     NeuterIStemExceptions},
    NounOfGrammar{ThirdDeclensionNeuter, "animal", ThirdDeclensionNeuter, "anima:l", NeuterIStemExceptions},
    NounOfGrammar{ThirdDeclensionNeuter, "tempus", ThirdDeclensionNeuter, "tempor",  {}},
    NounOfGrammar{ThirdDeclensionNeuter, "flumen", ThirdDeclensionNeuter, "flu:min", {}},
    NounOfGrammar{ThirdDeclensionNeuter, "opus",   ThirdDeclensionNeuter, "oper",    {}},
    // In the order of a list these are declined rightly; a learner's own list may have another.
    NounOfGrammar{ThirdDeclension,       "rex",    ThirdDeclension,       "re:g",    {}},
    NounOfGrammar{ThirdDeclension,       "miles",  ThirdDeclension,       "mi:lit",  {}},
    NounOfGrammar{ThirdDeclension,       "vox",    ThirdDeclension,       "vo:c",    {}},
    NounOfGrammar{ThirdDeclension,       "dux",    ThirdDeclension,       "duc",     {}},
    NounOfGrammar{ThirdDeclension,       "homo",   ThirdDeclension,       "homin",   {}},
    NounOfGrammar{ThirdDeclension,       "urbs",   ThirdDeclension,       "urb",     MixedExceptions},
    NounOfGrammar{ThirdDeclension,       "nox",    ThirdDeclension,       "noct",    MixedExceptions},
    NounOfGrammar{ThirdDeclension,       "ars",    ThirdDeclension,       "art",     MixedExceptions},
    NounOfGrammar{ThirdDeclension,       "turris", ThirdDeclension,       "turr",    IStemExceptions},
    NounOfGrammar{ThirdDeclension,       "virtus", ThirdDeclension,       "virtu:t", {}},
};
// clang-format on

constexpr char AnyBefore = '-';

bool isFor(std::string_view rowStem, std::string_view stem)
{
    if (rowStem.starts_with(AnyBefore))
        return rowStem.size() == 1 || shell::withoutMarks(stem).ends_with(rowStem.substr(1));
    return shell::withoutMarks(stem) == rowStem;
}

std::optional<std::string> formOnCell(const Word& word, int cell, std::string_view stem)
{
    const auto* const row = std::ranges::find_if(Cells, [&](const CellOfGrammar& one) {
        return one.kind == word.kind && one.paradigm == word.paradigm && one.cell == cell &&
               isFor(one.stem, stem);
    });
    if (row == Cells.end())
        return {};
    const bool whole = word.kind == Verb && !isRegular(word.paradigm);
    return std::string(whole ? "" : stem).append(row->ending);
}

std::string_view endingOfGrammar(const NounOfGrammar& noun, int inCase)
{
    for (const EndingException& exception : noun.exceptions)
        if (exception.inCase == inCase)
            return exception.ending;
    return endingOnPage(noun.page, inCase);
}

std::optional<std::string> formOfNoun(const Word& word, int inCase)
{
    const std::string listed = shell::withoutMarks(writtenStem(word.paradigm, word.number));
    const auto* const noun = std::ranges::find_if(Nouns, [&](const NounOfGrammar& one) {
        return one.paradigm == word.paradigm && one.listedStem == listed;
    });
    if (noun == Nouns.end() || inCase == NominativeSingular)
        return {};
    const std::string_view ending = endingOfGrammar(*noun, inCase);
    if (ending.empty())
        return {};
    return std::string(noun->stem).append(ending);
}

} // namespace

std::optional<std::string> grammarsForm(const Word& word, int cell, const shell::FormParts& drilled)
{
    if (!drilled.exist())
        return {};
    auto form = formOnCell(word, cell, drilled.stem);
    if (!form && word.kind == Noun)
        form = formOfNoun(word, cell);
    return form == formOf(drilled).text ? std::nullopt : form;
}

} // namespace tables
