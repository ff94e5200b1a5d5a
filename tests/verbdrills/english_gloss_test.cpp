#include "verbdrills/gloss.h"
#include "verbs/paradigm.h"

#include <gtest/gtest.h>

namespace {

using namespace verbs;

TEST(EnglishGloss, JoinsThePerfectsHalvesWithoutASecondLabel)
{
    const verbdrills::GlossParts love = {"I", "love", "loved", "loved", "loving"};
    EXPECT_EQ(verbdrills::englishGloss(PerfectIndicative, FirstConjugation, FirstSingular, love),
              "I loved,  have loved");
}

} // namespace
