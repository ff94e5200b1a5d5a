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

const Round EveryPerson = {0, 1, 2, 3, 4, 5};

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
        verbdrills::chooseFirstPerson();
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
            verbdrills::setQuestion();
            EXPECT_TRUE(verbdrills::isRightAnswer(conjugationDrill.CorrectForm));
            persons.push_back(person);
            last = verbdrills::advanceAfterRightAnswer();
        } while (last == Advance::NextPerson && persons.size() < 10);
        return persons;
    }

    Advance last = Advance::NextPerson;
};

TEST_F(ConjugationDrill, GoesThroughEveryTenseOfTheClassThatIsChosen)
{
    // Rows of the chooser: the -io verbs before the fourth conjugation; esse ends before the passive, velle
    // before the imperative.
    struct Choice {
        int row;
        int verbClass;
        int tenses;
    };
    for (const std::string order : {"Sequential", "Random"})
        for (const Choice& choice : std::vector<Choice>{{0, 1, 21},
                                                        {1, 2, 21},
                                                        {2, 3, 21},
                                                        {3, 5, 21},
                                                        {4, 4, 21},
                                                        {5, 6, 11},
                                                        {6, 7, 10},
                                                        {7, 8, 21}}) {
            settings.QuestionOrder = order;
            beginParadigm(choice.row);
            EXPECT_EQ(currentParadigm.ConjugationCode, choice.verbClass);
            for (int tense = 1; tense <= choice.tenses; ++tense) {
                EXPECT_EQ(currentParadigm.TenseMoodCode, tense);
                Round persons = playRound();
                if (order == "Random")
                    std::ranges::sort(persons);
                EXPECT_EQ(persons, EveryPerson) << choice.row << ", " << tense;
                EXPECT_EQ(last, tense < choice.tenses ? Advance::NextRound : Advance::ClassFinished);
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
                Round persons = playRound();
                std::ranges::sort(persons);
                EXPECT_EQ(persons, EveryPerson);
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
        starts.insert(first.front());
        orders.insert(first);
        EXPECT_EQ(conjugationDrill.RoundStartPerson, conjugationDrill.PersonIndex);
        laterStarts.insert(playRound().front());
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
        verbdrills::setQuestion();
        for (const std::string& answer : wrong)
            EXPECT_FALSE(verbdrills::isRightAnswer(answer)) << answer;
        EXPECT_EQ(conjugationDrill.FeedbackPending, 1);
        EXPECT_TRUE(verbdrills::isRightAnswer(right)) << right;
    }
}

TEST_F(ConjugationDrill, NamesTheParadigmAndTheVerb)
{
    beginParadigm(0);
    verbdrills::setQuestion();
    verbdrills::buildDrillHeading();
    EXPECT_EQ(conjugationDrill.DrillHeading, "First Conjugation: Present Indicative");
    EXPECT_EQ(currentParadigm.VerbLabel, "amare");
    EXPECT_EQ(currentParadigm.TenseLabel, "Present Indicative");
    beginParadigm(6);
    verbdrills::setQuestion();
    EXPECT_EQ(currentParadigm.VerbLabel, "Velle");
    EXPECT_EQ(currentParadigm.WindowTitle, "");
}

} // namespace
