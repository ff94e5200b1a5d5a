#include "nouns/noun_edits.h"

#include "nouns/fixed_nouns.h"
#include "nouns/noun_list_file.h"

#include <array>

namespace nouns {

namespace {

// clang-format off
constexpr std::array FirstParadigms  = {ListedParadigm{FirstDeclension,        "-a",                 "a"}};
constexpr std::array SecondParadigms = {ListedParadigm{SecondDeclensionUs,     "-us",                "us"},
                                        ListedParadigm{SecondDeclensionEr,     "-er",                "er"},
                                        ListedParadigm{SecondDeclensionNeuter, "-um",                "um"}};
constexpr std::array ThirdParadigms  = {ListedParadigm{ThirdDeclension,        "masculine/feminine", ""},
                                        ListedParadigm{ThirdDeclensionNeuter,  "neuter",             ""}};
constexpr std::array FourthParadigms = {ListedParadigm{FourthDeclension,       "-us",                "us"},
                                        ListedParadigm{FourthDeclensionNeuter, "-u",                 "u"}};
constexpr std::array FifthParadigms  = {ListedParadigm{FifthDeclension,        "-es",                "es"}};
// clang-format on

constexpr std::array<std::span<const ListedParadigm>, DeclensionCount> Declensions = {
    FirstParadigms, SecondParadigms, ThirdParadigms, FourthParadigms, FifthParadigms};

static_assert(!Declensions.back().empty());

} // namespace

std::span<const ListedParadigm> paradigmsOf(int declension)
{
    return Declensions.at(static_cast<std::size_t>(declension));
}

bool hasFixedNouns(int paradigm)
{
    return !fixedNounsOf(paradigm).nouns.empty();
}

int listedNounCount(int paradigm)
{
    return hasFixedNouns(paradigm) ? static_cast<int>(fixedNounsOf(paradigm).nouns.size())
                                   : nounList.NounCount[paradigm];
}

NounRecord listedNoun(int paradigm, int number)
{
    return hasFixedNouns(paradigm) ? fixedNounAt(paradigm, number) : nounAt(paradigm, number);
}

std::string listedNominative(const ListedParadigm& paradigm, int number)
{
    return listedNoun(paradigm.paradigm, number).stem.append(paradigm.nominativeEnding);
}

void countFourthDeclension()
{
    nounList.NounCount[FourthDeclension] = static_cast<std::int16_t>(listedNounCount(FourthDeclension));
}

NounEdit addNoun(int paradigm, const NounRecord& noun)
{
    if (paradigm == ParadigmUnchosen)
        return NounEdit::NoParadigm;
    std::int16_t& count = nounList.NounCount[paradigm];
    if (hasFixedNouns(paradigm))
        return NounEdit::FixedNouns;
    if (noun.stem.empty())
        return NounEdit::NoStem;
    if (count >= mostNounsOf(paradigm))
        return NounEdit::ListFull;
    if (paradigm == ThirdDeclension && noun.obliqueStem.empty())
        return NounEdit::NoObliqueStem;
    storeNoun(paradigm, count + 1, noun);
    ++count;
    return NounEdit::Stored;
}

std::string lineOfListedNoun(int paradigm, int number)
{
    if (hasFixedNouns(paradigm) || number > nounList.NounCount[paradigm])
        return {};
    return lineOfNoun(paradigm, nounAsWritten(paradigm, number));
}

} // namespace nouns
