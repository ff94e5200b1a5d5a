#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"

#include <array>

namespace {

using verbdrills::Identification;
using verbdrills::verbQuiz;
using namespace verbdrills::quiz_number;

class VerbQuizRules : public tests::FreshState {
protected:
    static Identification identificationOf(int verbClass, int row)
    {
        verbQuiz.QuizConjugation = static_cast<std::int16_t>(verbClass);
        verbQuiz.QuizRow = static_cast<std::int16_t>(row);
        verbdrills::identifyForm();
        return verbdrills::rightIdentification();
    }
};

struct Ending {
    int person;
    std::string_view number;
};

// The six forms of a tense as a grammar prints them, one after the other.
constexpr std::array<Ending, 6> Paradigm = {
    {{1, Sing}, {2, Sing}, {3, Sing}, {1, Plural}, {2, Plural}, {3, Plural}}};

TEST_F(VerbQuizRules, EveryFormOfEveryClassIsIdentified)
{
    for (int classRow = 0; classRow < 8; ++classRow) {
        int row = 1;
        for (int tenseRow = 0; tenseRow < 21; ++tenseRow)
            for (const Ending& ending : Paradigm) {
                const Identification expected = {classRow, tenseRow, ending.person, ending.number};
                EXPECT_EQ(identificationOf(classRow + 1, row), expected) << classRow << " " << row;
                EXPECT_TRUE(verbdrills::judgeIdentification(expected));
                ++row;
            }
    }
}

TEST_F(VerbQuizRules, EachPartOfAnIdentificationCounts)
{
    const Identification right = identificationOf(verbs::FourthConjugation, 10);
    EXPECT_EQ(right, (Identification{3, 1, 1, Plural}));
    for (const Identification& wrong :
         {Identification{4, 1, 1, Plural}, Identification{3, 2, 1, Plural}, Identification{3, 1, 2, Plural},
          Identification{3, 1, 1, Sing}, Identification{-1, 1, 1, Plural}, Identification{3, -1, 1, Plural}})
        EXPECT_FALSE(verbdrills::judgeIdentification(wrong));
}

TEST_F(VerbQuizRules, CheckingNamesTheExerciseAndKeepsAWrongAnswersForm)
{
    const Identification right = identificationOf(verbs::Esse, 1);
    verbQuiz.formIsAsked = true;
    shell::settings.ExerciseType = shell::exercise::Conjugation;
    EXPECT_FALSE(verbdrills::judgeIdentification({}));
    EXPECT_EQ(shell::settings.ExerciseType, "Quiz");
    EXPECT_TRUE(verbQuiz.formIsAsked);
    EXPECT_TRUE(verbdrills::judgeIdentification(right));
    EXPECT_FALSE(verbQuiz.formIsAsked);
}

} // namespace
