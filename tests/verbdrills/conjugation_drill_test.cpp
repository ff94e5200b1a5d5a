#include "platform/random.h"
#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/conjugation_drill.h"
#include "verbs/verb_list.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <set>
#include <vector>

namespace {

using namespace verbdrills;
using shell::settings;
using verbs::currentParadigm;

using Round = std::vector<int>;

class ConjugationDrill : public tests::FreshState {
protected:
    ConjugationDrill()
    {
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
            verbs::storeVerb(verbClass, 1, {"am", "amav", "amat", {}});
        settings.SoundOn = platform::FlagTrue;
    }

    static void beginParadigm(int row)
    {
        beginConjugationChoice();
        chooseConjugation(row);
        generateParadigms();
        beginRound();
    }

    // Answers right to the end of the round. Each person comes once, one after the other unless the order is
    // random, and a beep ends the round.
    Advance playRound(int verbClass, int tense)
    {
        EXPECT_EQ(currentParadigm.ConjugationCode, verbClass);
        EXPECT_EQ(currentParadigm.TenseMoodCode, tense);
        fake.beeps = 0;
        persons.clear();
        auto advance = Advance::NextPerson;
        while (advance == Advance::NextPerson && persons.size() < 10) {
            EXPECT_EQ(fake.beeps, 0);
            persons.push_back(conjugationDrill.PersonIndex);
            EXPECT_EQ(conjugationDrill.FormRow, 6 * (tense - 1) + persons.back());
            setConjugationQuestion();
            advance = advanceAfterRightAnswer();
        }
        Round sorted = persons;
        std::ranges::sort(sorted);
        EXPECT_EQ(settings.QuestionOrder == "Random" ? sorted : persons, (Round{0, 1, 2, 3, 4, 5}));
        EXPECT_EQ(fake.beeps, 1);
        return advance;
    }

    Round persons;
};

// Class, tenses, the title of the class, and the verb that is named, by row of the chooser: the -io verbs
// stand before the fourth conjugation; esse ends before the passive, velle before the imperative.
const std::vector<std::tuple<int, int, std::string, std::string>> Rows = {
    {1, 21, "1. Konjugation", "amare"}, {2, 21, "2. Konjugation", "amere"},
    {3, 21, "3. Konjugation", "amere"}, {5, 21, "3. Konjugation (-io)", "amere"},
    {4, 21, "4. Konjugation", "amire"}, {6, 11, "Velle (wollen)", "Esse"}, // sic
    {7, 10, "Esse (sein)", "Velle"},    {8, 21, "", "ferre"}};             // sic

TEST_F(ConjugationDrill, GoesThroughEveryTenseOfAClassOrWithATenseThroughTheRegularClasses)
{
    settings.CurrentLanguage = "German";
    for (const char* const order : {"Sequential", "Random"}) {
        settings.QuestionOrder = order;
        int row = 0;
        for (const auto& [verbClass, tenses, title, verb] : Rows) {
            beginParadigm(row++);
            for (int tense = 1; tense <= tenses; ++tense)
                EXPECT_EQ(playRound(verbClass, tense),
                          tense < tenses ? Advance::NextRound : Advance::ClassFinished);
            buildDrillHeading();
            EXPECT_TRUE(conjugationDrill.DrillHeading.starts_with(title + ": "));
            EXPECT_EQ(currentParadigm.WindowTitle, verbClass == 6 || verbClass == 7 ? "" : title);
            EXPECT_EQ(currentParadigm.VerbLabel, verb);
            resetAfterLeaving();
        }
        for (int tense = 1; tense <= verbs::BlockCount; ++tense) {
            settings.AnsweredCount = 7;
            EXPECT_EQ(chooseConjugation(8), ConjugationChoice::SingleTense);
            chooseTense(tense - 1);
            generateParadigms();
            EXPECT_EQ(settings.AnsweredCount, 0);
            for (int verbClass = 1; verbClass <= 5; ++verbClass)
                EXPECT_EQ(playRound(verbClass, tense),
                          verbClass < 5 ? Advance::NextRound : Advance::TenseFinished);
        }
    }
}

TEST_F(ConjugationDrill, AsksInRandomOrderFromAnyPersonToAnyOther)
{
    settings.QuestionOrder = "Random";
    std::set<std::pair<int, int>> startsAndNext;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        platform::seedWith(seed);
        beginParadigm(0);
        playRound(1, 1);
        startsAndNext.emplace(persons.front(), conjugationDrill.PersonIndex);
        EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
        resetAfterLeaving();
    }
    EXPECT_EQ(startsAndNext.size(), 36U);
}

TEST_F(ConjugationDrill, JudgesLetterByLetter)
{
    settings.ShowVowelLength = platform::FlagTrue;
    beginParadigm(0);
    for (const auto& [row, right] : {std::pair{1, "ama:s"}, {60, ""}}) { // the imperative has no first person
        conjugationDrill.FormRow = static_cast<std::int16_t>(row);
        setConjugationQuestion();
        for (const std::string answer :
             {"ama:s", "", " ", "amas", "Ama:s", " ama:s", "ama:s ", "ama:s:", "ama\u0304s"})
            EXPECT_EQ(judgeConjugation(answer), answer == right) << answer;
    }
}

} // namespace
