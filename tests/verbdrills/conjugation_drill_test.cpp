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

using shell::settings;
using verbdrills::Advance;
using verbdrills::conjugationDrill;
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
        verbdrills::beginConjugationChoice();
        verbdrills::chooseConjugation(row);
        verbdrills::generateParadigms();
        verbdrills::beginRound();
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
            verbdrills::setConjugationQuestion();
            EXPECT_TRUE(verbdrills::judgeConjugation(conjugationDrill.CorrectForm));
            advance = verbdrills::advanceAfterRightAnswer();
        }
        Round sorted = persons;
        std::ranges::sort(sorted);
        EXPECT_EQ(settings.QuestionOrder == "Random" ? sorted : persons, (Round{0, 1, 2, 3, 4, 5}));
        EXPECT_EQ(fake.beeps, 1);
        return advance;
    }

    Round persons;
};

// By row of the chooser: the -io verbs stand before the fourth conjugation; esse ends before the passive,
// velle before the imperative.
TEST_F(ConjugationDrill, GoesThroughEveryTenseOfTheClassThatIsChosen)
{
    // Class, tenses, the title of the class, and the verb that is named; sic: the titles of esse and velle.
    const std::vector<std::tuple<int, int, std::string, std::string>> rows = {
        {1, 21, "1. Konjugation", "amare"}, {2, 21, "2. Konjugation", "amere"},
        {3, 21, "3. Konjugation", "amere"}, {5, 21, "3. Konjugation (-io)", "amere"},
        {4, 21, "4. Konjugation", "amire"}, {6, 11, "Velle (wollen)", "Esse"},
        {7, 10, "Esse (sein)", "Velle"},    {8, 21, "", "ferre"}};
    settings.CurrentLanguage = "German";
    for (const char* const order : {"Sequential", "Random"}) {
        settings.QuestionOrder = order;
        int row = 0;
        for (const auto& [verbClass, tenses, title, verb] : rows) {
            beginParadigm(row++);
            for (int tense = 1; tense < tenses; ++tense)
                EXPECT_EQ(playRound(verbClass, tense), Advance::NextRound);
            EXPECT_EQ(playRound(verbClass, tenses), Advance::ClassFinished);
            verbdrills::buildDrillHeading();
            EXPECT_TRUE(conjugationDrill.DrillHeading.starts_with(title + ": "));
            const bool irregular = verbClass == verbs::Esse || verbClass == verbs::Velle;
            EXPECT_EQ(currentParadigm.WindowTitle, irregular ? "" : title);
            EXPECT_EQ(currentParadigm.VerbLabel, verb);
            verbdrills::resetAfterLeaving();
        }
    }
}

TEST_F(ConjugationDrill, GoesWithASingleTenseThroughTheRegularClasses)
{
    for (const char* const order : {"Sequential", "Random"})
        for (int row = 0; row < verbs::BlockCount; ++row) {
            settings.QuestionOrder = order;
            settings.AnsweredCount = 7;
            EXPECT_EQ(verbdrills::chooseConjugation(8), verbdrills::ConjugationChoice::SingleTense);
            verbdrills::chooseTense(row);
            verbdrills::generateParadigms();
            EXPECT_EQ(settings.AnsweredCount, 0);
            for (int verbClass = 1; verbClass <= 4; ++verbClass)
                EXPECT_EQ(playRound(verbClass, row + 1), Advance::NextRound);
            EXPECT_EQ(playRound(5, row + 1), Advance::TenseFinished);
        }
}

TEST_F(ConjugationDrill, AsksInRandomOrderFromAnyPersonToAnyOther)
{
    settings.QuestionOrder = "Random";
    std::set<Round> orders;
    std::set<std::pair<int, int>> starts;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        platform::seedWith(seed);
        beginParadigm(0);
        playRound(1, 1);
        orders.insert(persons);
        starts.emplace(persons.front(), conjugationDrill.PersonIndex);
        EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
        verbdrills::resetAfterLeaving();
    }
    EXPECT_EQ(starts.size(), 36U);
    EXPECT_GT(orders.size(), 200U);
}

TEST_F(ConjugationDrill, JudgesLetterByLetter)
{
    settings.ShowVowelLength = platform::FlagTrue;
    beginParadigm(0);
    conjugationDrill.FormRow = 1;
    verbdrills::setConjugationQuestion();
    for (const char* const wrong : {"amas", "Ama:s", " ama:s", "ama:s ", "ama:s:", "ama:", "ama\u0304s", ""})
        EXPECT_FALSE(verbdrills::judgeConjugation(wrong)) << wrong;
    EXPECT_TRUE(verbdrills::judgeConjugation("ama:s"));
    conjugationDrill.FormRow = 60; // the imperative has no first person
    verbdrills::setConjugationQuestion();
    EXPECT_FALSE(verbdrills::judgeConjugation(" "));
    EXPECT_TRUE(verbdrills::judgeConjugation(""));
}

} // namespace
