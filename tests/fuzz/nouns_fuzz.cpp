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
        readNounList(path);
        for (int paradigm = 1; paradigm <= ParadigmCount; ++paradigm)
            for (int number = mostNounsOf(paradigm); number > nounList.NounCount[paradigm]; --number)
                require(nounAt(paradigm, number) == NounRecord{}, "Past the last noun there is none");
        for (int draw = 1; draw <= 3; ++draw)
            BuildNounParadigms();
        const NounList before = nounList;
        readNounList(path);
        require(nounList.NounCount == before.NounCount && nounList.NounListStem == before.NounListStem &&
                    nounList.NounListMeaning == before.NounListMeaning,
                "The same nouns are read again");
    }
}
