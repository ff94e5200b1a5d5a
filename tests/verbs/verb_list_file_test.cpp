#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbs/verb_list.h"
#include "verbs/verb_list_file.h"

namespace {

using VerbListFile = tests::FreshState;

TEST_F(VerbListFile, HoldsFifteenVerbsOfEachClassInTheSamples)
{
    tests::copySample("verbs.cfg");
    EXPECT_TRUE(verbs::readVerbList("verbs.cfg"));
    for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
        EXPECT_EQ(verbs::verbList.Count[verbClass], 15) << verbClass;
    EXPECT_EQ(verbs::verbList.SupineStem[verbs::FirstConjugation][1], "amat");
}

} // namespace
