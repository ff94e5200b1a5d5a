#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tests/fuzz/one_file.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace {

using fuzz::require;
using verbs::verbList;
using verbs::VerbRecord;
using verbs::verbTables;

void startAnew(platform::Flag showVowelLength)
{
    shell::settings = {};
    shell::settings.ShowVowelLength = showVowelLength;
    verbs::verbTables = {};
    verbs::currentParadigm = {};
    verbList = {};
}

void requireCountedVerbsAlone()
{
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
        const int count = verbList.Count[verbClass];
        require(0 <= count && count <= verbs::MostVerbs, "A class holds 0 to 15 verbs");
        for (int number = count + 1; number <= verbs::MostVerbs; ++number)
            require(verbs::verbAt(verbClass, number) == VerbRecord{}, "Past the last verb there is none");
    }
}

// With the places past the last verb: 15 to a class.
std::vector<VerbRecord> everyVerb()
{
    std::vector<VerbRecord> records;
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        for (int number = 1; number <= verbs::MostVerbs; ++number)
            records.push_back(verbs::verbAt(verbClass, number));
    return records;
}

VerbRecord withoutMarks(VerbRecord verb)
{
    for (std::string* const stem : {&verb.presentStem, &verb.perfectStem, &verb.supineStem})
        *stem = shell::StripOutColons(*stem);
    return verb;
}

std::vector<VerbRecord> everyVerbReadWithMarks(const std::filesystem::path& path)
{
    startAnew(platform::FlagTrue);
    verbs::readVerbList(path);
    return everyVerb();
}

void swapWithFirst(int verbClass, int number)
{
    for (auto* const stems : {&verbList.PresentStem, &verbList.PerfectStem, &verbList.SupineStem})
        std::swap((*stems)[verbClass][1], (*stems)[verbClass][number]);
    for (auto* const translations :
         {&verbList.BaseForm, &verbList.Past, &verbList.PastParticiple, &verbList.PresentParticiple})
        std::swap((*translations)[verbClass][0], (*translations)[verbClass][number - 1]);
}

void swapAllWithFirst(int number)
{
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        swapWithFirst(verbClass, number);
}

bool isBuiltFrom(const std::string& form, const VerbRecord& verb)
{
    return form.empty() || form.starts_with(verb.presentStem) || form.starts_with(verb.perfectStem) ||
           form.starts_with(verb.supineStem);
}

void requireFormsOf(int verbClass, const VerbRecord& verb)
{
    for (int form = 1; form <= verbs::FormCount; ++form)
        require(isBuiltFrom(verbTables.Forms[verbClass][form], verb), "A form begins with a stem");
    require(verbTables.Infinitive[verbClass].starts_with(verb.presentStem),
            "The infinitive begins with the present stem");
    const std::array glosses = {verbTables.BaseGloss[verbClass], verbTables.PastGloss[verbClass],
                                verbTables.ParticipleGloss[verbClass],
                                verbTables.PresentParticipleGloss[verbClass]};
    require(glosses == verb.translations, "A verb comes with its own translations");
}

// A list of one verb a class leaves nothing to chance.
void generateEveryVerb()
{
    const auto counts = verbList.Count;
    verbdrills::generateParadigms();
    verbList.Count.fill(1);
    for (int number = 1; number <= *std::ranges::max_element(counts); ++number) {
        swapAllWithFirst(number);
        verbdrills::generateParadigms();
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
            requireFormsOf(verbClass, verbs::verbAt(verbClass, 1));
        swapAllWithFirst(number);
    }
    verbList.Count = counts;
}

void requireTheSameAgain(const std::filesystem::path& path, bool whole)
{
    const auto before = everyVerb();
    const auto counts = verbList.Count;
    require(verbs::readVerbListAgain(path) == whole, "The list is read again as far as it was read");
    require(everyVerb() == before, "The same verbs are read again");
    if (!whole)
        return;
    require(verbList.Count[verbs::ThirdIoConjugation] == counts[verbs::FourthConjugation] &&
                verbList.Count[verbs::FourthConjugation] == counts[verbs::ThirdIoConjugation],
            "The counts of the -io verbs and of the fourth conjugation change places");
    verbdrills::generateParadigms();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto path = fuzz::beginWithFile(data, size);
    auto marked = everyVerbReadWithMarks(path);
    startAnew(platform::FlagFalse);
    const bool whole = verbs::readVerbList(path);
    requireCountedVerbsAlone();
    std::ranges::transform(marked, marked.begin(), withoutMarks);
    require(everyVerb() == marked, "Marks alone make the difference");
    generateEveryVerb();
    requireTheSameAgain(path, whole);
    return 0;
}
