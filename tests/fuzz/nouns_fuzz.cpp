#include "nouns/declensions.h"
#include "nouns/noun_list.h"
#include "nouns/noun_list_file.h"
#include "shell/settings.h"
#include "tests/fuzz/one_file.h"

void fuzz::readFile(const std::filesystem::path& path)
{
    using namespace nouns;
    for (const auto showVowelLength : {platform::FlagTrue, platform::FlagFalse}) {
        shell::settings.ShowVowelLength = showVowelLength;
        nounList = {};
        const bool whole = readNounList(path);
        for (int paradigm = 1; paradigm <= ParadigmCount; ++paradigm) {
            require(nounList.NounCount[paradigm] <= mostNounsOf(paradigm), "No list holds more than it can");
            for (int number = mostNounsOf(paradigm); number > nounList.NounCount[paradigm]; --number)
                require(nounAt(paradigm, number) == NounRecord{}, "Past the last noun there is none");
        }
        for (int draw = 1; draw <= 3; ++draw)
            BuildNounParadigms();
        const NounList before = nounList;
        require(readNounList(path) == whole, "The list is read again as far as it was read");
        require(nounList.NounCount == before.NounCount && nounList.NounListStem == before.NounListStem &&
                    nounList.NounListMeaning == before.NounListMeaning,
                "The same nouns are read again");
    }
}
