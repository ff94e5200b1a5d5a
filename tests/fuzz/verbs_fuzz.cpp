#include "shell/settings.h"
#include "tests/fuzz/one_file.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"

void fuzz::readFile(const std::filesystem::path& path)
{
    using namespace verbs;
    for (const auto showVowelLength : {platform::FlagTrue, platform::FlagFalse}) {
        shell::settings.ShowVowelLength = showVowelLength;
        verbList = {};
        const bool whole = readVerbList(path);
        for (int verbClass = 1; verbClass <= LastRegularClass; ++verbClass) {
            require(verbList.Count[verbClass] <= MostVerbs, "A class holds at most 15 verbs");
            for (int number = MostVerbs; number > verbList.Count[verbClass]; --number)
                require(verbAt(verbClass, number) == VerbRecord{}, "Past the last verb there is none");
        }
        for (int draw = 1; draw <= 3; ++draw)
            verbdrills::generateParadigms();
        const VerbList before = verbList;
        require(readVerbListAgain(path) == whole, "The list is read again as far as it was read");
        require(verbList.PresentStem == before.PresentStem && verbList.SupineStem == before.SupineStem &&
                    verbList.PresentParticiple == before.PresentParticiple,
                "The same verbs are read again");
    }
}
