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

// Each person once; one after the other unless the order is random.
void expectEveryPerson(Round persons)
{
    if (settings.QuestionOrder == "Random")
        std::ranges::sort(persons);
    EXPECT_EQ(persons, (Round{0, 1, 2, 3, 4, 5}));
}

class ConjugationDrill : public tests::FreshState {
protected:
    ConjugationDrill()
    {
        for (int verbClass = 1; verbClass <= verbs::LastRegularClass; ++verbClass)
            verbs::storeVerb(verbClass, 1, {"am", "amav", "amat", {}});
    }

    static void beginParadigm(int row)
    {
        verbdrills::beginConjugationChoice();
        verbdrills::chooseConjugation(row);
        verbdrills::generateParadigms();
        verbdrills::beginRound();
    }

    static void beginTense(int row)
    {
        verbdrills::beginTenseChoice();
        verbdrills::chooseTense(row);
        verbdrills::generateParadigms();
    }

    // Answers right to the end of the round, and returns the persons in the order in which they were asked.
    Round playRound()
    {
        Round persons;
        do {
            const int person = conjugationDrill.PersonIndex;
            EXPECT_EQ(conjugationDrill.FormRow, 6 * (currentParadigm.TenseMoodCode - 1) + person);
            verbdrills::setConjugationQuestion();
            EXPECT_TRUE(verbdrills::judgeConjugation(conjugationDrill.CorrectForm));
            persons.push_back(person);
            last = verbdrills::advanceAfterRightAnswer();
        } while (last == Advance::NextPerson && persons.size() < 10);
        return persons;
    }

    Advance last = Advance::NextPerson;
};

TEST_F(ConjugationDrill, GoesThroughEveryTenseOfTheClassThatIsChosen)
{
    // By row of the chooser: the -io verbs stand before the fourth conjugation; esse ends before the passive,
    // velle before the imperative.
    const std::vector<int> classes = {1, 2, 3, 5, 4, 6, 7, 8};
    const std::vector<int> tenses = {21, 21, 21, 21, 21, 11, 10, 21};
    for (const std::string order : {"Sequential", "Random"})
        for (std::size_t row = 0; row < classes.size(); ++row) {
            settings.QuestionOrder = order;
            beginParadigm(static_cast<int>(row));
            for (int tense = 1; tense <= tenses.at(row); ++tense) {
                EXPECT_EQ(currentParadigm.ConjugationCode, classes.at(row));
                EXPECT_EQ(currentParadigm.TenseMoodCode, tense);
                expectEveryPerson(playRound());
                EXPECT_EQ(last, tense < tenses.at(row) ? Advance::NextRound : Advance::ClassFinished);
            }
            verbdrills::resetAfterLeaving();
            EXPECT_EQ(currentParadigm.TenseMoodCode, 1);
            EXPECT_EQ(conjugationDrill.FormRow, 0);
        }
}

TEST_F(ConjugationDrill, GoesWithASingleTenseThroughTheRegularClasses)
{
    for (const std::string order : {"Sequential", "Random"})
        for (int row = 0; row < verbs::BlockCount; ++row) {
            settings.QuestionOrder = order;
            settings.AnsweredCount = 7;
            beginTense(row);
            EXPECT_EQ(settings.AnsweredCount, 0);
            EXPECT_EQ(conjugationDrill.PersonIndex, 0);
            for (int verbClass = 1; verbClass <= 5; ++verbClass) {
                EXPECT_EQ(currentParadigm.ConjugationCode, verbClass);
                EXPECT_EQ(currentParadigm.TenseMoodCode, row + 1);
                expectEveryPerson(playRound());
                EXPECT_EQ(last, verbClass < 5 ? Advance::NextRound : Advance::TenseFinished);
            }
            EXPECT_EQ(conjugationDrill.PersonIndex, 0);
        }
}

TEST_F(ConjugationDrill, AsksInRandomOrderFromAnyPersonToAnyOther)
{
    settings.QuestionOrder = "Random";
    std::set<Round> orders;
    std::set<int> starts;
    std::set<int> laterStarts;
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        platform::seedWith(seed);
        beginParadigm(0);
        EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
        const Round first = playRound();
        EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
        starts.insert(first.front());
        laterStarts.insert(conjugationDrill.PersonIndex);
        orders.insert(first);
        verbdrills::resetAfterLeaving();
    }
    EXPECT_EQ(starts.size(), 6U);
    EXPECT_EQ(laterStarts.size(), 6U);
    EXPECT_GT(orders.size(), 100U);
}

TEST_F(ConjugationDrill, BeepsAtTheEndOfARoundWithSoundOn)
{
    for (const auto& [sound, beeps] : {std::pair{-1, 2}, {0, 0}, {1, 0}}) {
        settings.SoundOn = static_cast<platform::Flag>(sound);
        fake.beeps = 0;
        beginParadigm(0);
        playRound();
        playRound();
        EXPECT_EQ(fake.beeps, beeps) << sound;
    }
}

TEST_F(ConjugationDrill, IsChosenByRow)
{
    using verbdrills::ConjugationChoice;
    currentParadigm.ConjugationCode = 4;
    currentParadigm.TenseMoodCode = 9;
    for (const int row : {-1, 9, 100}) {
        EXPECT_EQ(verbdrills::chooseConjugation(row), ConjugationChoice::None) << row;
        EXPECT_EQ(currentParadigm.SingleTenseMode, 0);
    }
    EXPECT_EQ(verbdrills::chooseConjugation(8), ConjugationChoice::SingleTense);
    EXPECT_EQ(currentParadigm.SingleTenseMode, 1);
    for (const int row : {-1, 21})
        EXPECT_FALSE(verbdrills::chooseTense(row)) << row;
    EXPECT_EQ(currentParadigm.ConjugationCode, 4);
    EXPECT_EQ(currentParadigm.TenseMoodCode, 9);

    conjugationDrill.AnswerSlots[5] = "amant";
    verbdrills::beginConjugationChoice();
    EXPECT_EQ(currentParadigm.SingleTenseMode, 0);
    EXPECT_EQ(conjugationDrill.AnswerSlots[5], "");
}

TEST_F(ConjugationDrill, JudgesLetterByLetter)
{
    struct Judgement {
        int shown; // `ShowVowelLength`
        int formRow;
        std::string right;
        std::vector<std::string> wrong;
    };
    const std::vector<Judgement> cases = {
        {-1, 1, "ama:s", {"amas", "Ama:s", " ama:s", "ama:s ", "ama:s:", "ama:", "ama\u0304s", ""}},
        {0, 1, "amas", {"ama:s", "AMAS", "amas.", "a mas", "am\u0101s", ""}},
        {0, 84, "amatus -a -um sum", {"amatus sum", "amatus -a -um  sum", "amatus, -a, -um sum"}},
        {0, 60, "", {" ", "ama", "-"}}, // no first person in the imperative
    };
    for (const auto& [shown, formRow, right, wrong] : cases) {
        settings.ShowVowelLength = static_cast<platform::Flag>(shown);
        settings.VowelMark.clear();
        beginParadigm(0);
        conjugationDrill.FormRow = static_cast<std::int16_t>(formRow);
        conjugationDrill.FeedbackPending = 0;
        verbdrills::setConjugationQuestion();
        for (const std::string& answer : wrong)
            EXPECT_FALSE(verbdrills::judgeConjugation(answer)) << answer;
        EXPECT_EQ(conjugationDrill.FeedbackPending, 1);
        EXPECT_TRUE(verbdrills::judgeConjugation(right)) << right;
    }
}

TEST_F(ConjugationDrill, NamesTheParadigmAndTheVerb)
{
    beginParadigm(0);
    verbdrills::setConjugationQuestion();
    verbdrills::buildDrillHeading();
    EXPECT_EQ(conjugationDrill.DrillHeading, "First Conjugation: Present Indicative");
    EXPECT_EQ(currentParadigm.VerbLabel, "amare");
}

} // namespace
