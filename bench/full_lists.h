#pragma once

#include "nouns/noun_list.h"
#include "verbs/verb_list.h"

#include <cstdint>

namespace bench {

/// Makes every list as full as it can be, with the words that it has at first again and again.
inline void fillLists()
{
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass) {
        auto& count = verbs::verbList.Count[verbClass];
        for (int number = count + 1; number <= verbs::MostVerbs; ++number)
            verbs::storeVerb(verbClass, number, verbs::verbAsWritten(verbClass, number - count));
        count = verbs::MostVerbs;
    }
    for (int paradigm = 1; paradigm <= nouns::ParadigmCount; ++paradigm) {
        auto& count = nouns::nounList.NounCount[paradigm];
        const int most = nouns::mostNounsOf(paradigm);
        for (int number = count + 1; count > 0 && number <= most; ++number)
            nouns::storeNoun(paradigm, number, nouns::nounAsWritten(paradigm, (number - 1) % count + 1));
        count = static_cast<std::int16_t>(most);
    }
}

} // namespace bench
