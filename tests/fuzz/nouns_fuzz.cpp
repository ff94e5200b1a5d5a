#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "nouns/noun_list_file.h"
#include "nouns/noun_tables.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/fuzz/one_file.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace {

using fuzz::require;
using nouns::nounList;
using nouns::NounRecord;
using nouns::nounTables;

// The paradigms whose nouns stand in the list, and the only ones that are generated from it.
constexpr std::array ListedParadigms = {nouns::FirstDeclension,    nouns::SecondDeclensionUs,
                                        nouns::SecondDeclensionEr, nouns::SecondDeclensionNeuter,
                                        nouns::ThirdDeclension,    nouns::ThirdDeclensionNeuter};

void startAnew(platform::Flag showVowelLength)
{
    shell::settings = {};
    shell::settings.ShowVowelLength = showVowelLength;
    nounTables = {};
    nounList = {};
}

void requireCountedNounsAlone()
{
    for (int paradigm = 1; paradigm <= nouns::ParadigmCount; ++paradigm) {
        const int count = nounList.NounCount[paradigm];
        require(0 <= count && count <= nouns::mostNounsOf(paradigm), "No list holds more than it can");
        for (int number = count + 1; number <= nouns::mostNounsOf(paradigm); ++number)
            require(nouns::nounAt(paradigm, number) == NounRecord{}, "Past the last noun there is none");
    }
    require(nounList.NounCount[nouns::FourthDeclension] == 0, "No file counts the fourth declension in -us");
}

// With the places past the last noun.
std::vector<NounRecord> everyNoun()
{
    std::vector<NounRecord> records;
    for (int paradigm = 1; paradigm <= nouns::ParadigmCount; ++paradigm)
        for (int number = 1; number <= nouns::mostNounsOf(paradigm); ++number)
            records.push_back(nouns::nounAt(paradigm, number));
    return records;
}

NounRecord withoutMarks(NounRecord noun)
{
    noun.stem = shell::StripOutColons(noun.stem);
    noun.obliqueStem = shell::StripOutColons(noun.obliqueStem);
    return noun;
}

std::vector<NounRecord> everyNounReadWithMarks(const std::filesystem::path& path)
{
    startAnew(platform::FlagTrue);
    nouns::readNounList(path);
    return everyNoun();
}

void swapWithFirst(int paradigm, int number)
{
    std::swap(nounList.NounListStem[paradigm][0], nounList.NounListStem[paradigm][number - 1]);
    std::swap(nounList.NounListNote[paradigm][1], nounList.NounListNote[paradigm][number]);
    for (int column = 1; column <= nouns::MeaningCount; ++column)
        std::swap(nounList.NounListMeaning[column][paradigm][1],
                  nounList.NounListMeaning[column][paradigm][number]);
    if (paradigm == nouns::ThirdDeclension)
        std::swap(nounList.NounListObliqueStem[paradigm][0],
                  nounList.NounListObliqueStem[paradigm][number - 1]);
}

void requireFormsOf(int paradigm, const NounRecord& noun)
{
    for (int inCase = 1; inCase <= nouns::CaseCount; ++inCase) {
        const std::string& form = nounTables.NounForms[paradigm][inCase];
        require(form.starts_with(noun.stem) || form.starts_with(noun.obliqueStem),
                "A form begins with a stem");
    }
    const std::string& caption = nounTables.NounCaption[paradigm];
    require(caption.starts_with(noun.stem) && caption.find(noun.note) != std::string::npos,
            "A noun comes with its own caption");
}

void generateAndRequireForms(int paradigm)
{
    nouns::BuildNounParadigms();
    requireFormsOf(paradigm, nouns::nounAt(paradigm, 1));
}

// A list of one noun a paradigm leaves nothing to chance.
void generateEveryNoun()
{
    const auto counts = nounList.NounCount;
    nouns::BuildNounParadigms();
    nounList.NounCount.fill(1);
    for (const int paradigm : ListedParadigms)
        for (int number = 1; number <= counts[paradigm]; ++number) {
            swapWithFirst(paradigm, number);
            generateAndRequireForms(paradigm);
            swapWithFirst(paradigm, number);
        }
    nounList.NounCount = counts;
}

void generateEveryNounOfTheThird()
{
    for (int number = 1; number <= nounList.NounCount[nouns::ThirdDeclension]; ++number) {
        nouns::buildThirdDeclension(number);
        requireFormsOf(nouns::ThirdDeclension, nouns::nounAt(nouns::ThirdDeclension, number));
    }
}

void requireTheSameAgain(const std::filesystem::path& path, bool whole)
{
    const auto before = everyNoun();
    const auto counts = nounList.NounCount;
    require(nouns::readNounList(path) == whole, "The list is read again as far as it was read");
    require(everyNoun() == before && nounList.NounCount == counts, "The same nouns are read again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto path = fuzz::beginWithFile(data, size);
    auto marked = everyNounReadWithMarks(path);
    startAnew(platform::FlagFalse);
    const bool whole = nouns::readNounList(path);
    requireCountedNounsAlone();
    std::ranges::transform(marked, marked.begin(), withoutMarks);
    require(everyNoun() == marked, "Marks alone make the difference");
    generateEveryNoun();
    generateEveryNounOfTheThird();
    requireTheSameAgain(path, whole);
    return 0;
}
