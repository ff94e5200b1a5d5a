#include "verbs/verb_edits.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "verbs/verb_list_file.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace verbs {

using shell::settings;

namespace {

struct Edit {
    int verbClass;
    int number;
    VerbRecord verb;
    bool added;
};

std::vector<Edit> edits;

// By class: first, second, third, fourth conjugation, -io verbs.
constexpr std::array ListedEndings = {"are", "ere", "ere", "ire", "ire"}; // sic: capire

static_assert(ListedEndings.size() == LastRegularClass);

void store(const Edit& edit)
{
    storeVerb(edit.verbClass, edit.number, edit.verb);
    std::int16_t& count = verbList.Count[edit.verbClass];
    if (edit.added)
        count = std::max(count, static_cast<std::int16_t>(edit.number));
}

auto editOf(int verbClass, int number)
{
    return std::ranges::find_if(
        edits, [=](const Edit& edit) { return edit.verbClass == verbClass && edit.number == number; });
}

// A stem that was left as it stood while marks were not shown takes its marks from the verb before the edit.
void keepMarks(VerbRecord& edited, const VerbRecord& before)
{
    for (std::string VerbRecord::*const stem :
         {&VerbRecord::presentStem, &VerbRecord::perfectStem, &VerbRecord::supineStem})
        if (edited.*stem == shell::StripOutColons(before.*stem))
            edited.*stem = before.*stem;
}

} // namespace

VerbEdit editVerb(int verbClass, int number, const VerbRecord& verb)
{
    if (verb.presentStem.empty())
        return VerbEdit::NoPresentStem;
    if (number > MostVerbs)
        return VerbEdit::ListFull;
    Edit edit{verbClass, number, verb, number > verbList.Count[verbClass]};
    if (settings.ShowVowelLength != platform::FlagTrue)
        keepMarks(edit.verb, verbAsWritten(verbClass, number));
    if (const auto before = editOf(verbClass, number); before != edits.end()) {
        edit.added = edit.added || before->added;
        edits.erase(before);
    }
    store(edit);
    edits.push_back(edit);
    return VerbEdit::Stored;
}

void repeatVerbEdits()
{
    for (const Edit& edit : edits)
        store(edit);
}

void forgetVerbEdits()
{
    edits.clear();
}

std::string listedInfinitive(int verbClass, int number)
{
    const auto ending = ListedEndings.at(static_cast<std::size_t>(verbClass - FirstConjugation));
    return verbList.PresentStem[verbClass][number] + std::string(ending);
}

std::string lineOfListedVerb(int verbClass, int number)
{
    if (number > verbList.Count[verbClass] || verbList.PresentStem[verbClass][number].empty())
        return {};
    return lineOfVerb(verbAsWritten(verbClass, number));
}

} // namespace verbs
