#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/verb_question.h"

#include <array>

namespace {

using VerbQuestion = tests::FreshState;
using verbdrills::Identification;
using namespace verbdrills::quiz_number;

// The six forms of a tense as a grammar prints them, one after the other.
constexpr std::array<std::pair<int, std::string_view>, 6> Persons = {
    {{1, Sing}, {2, Sing}, {3, Sing}, {1, Plural}, {2, Plural}, {3, Plural}}};

TEST_F(VerbQuestion, IdentifiesEveryFormOfEveryClassByEachOfItsParts)
{
    auto& quiz = verbdrills::verbQuiz;
    for (int classRow = 0; classRow < 8; ++classRow)
        for (int form = 0; form < 126; ++form) {
            quiz.QuizConjugation = static_cast<std::int16_t>(classRow + 1);
            quiz.QuizRow = static_cast<std::int16_t>(form + 1);
            verbdrills::identifyForm();
            const int tense = form / 6;
            const auto& [person, number] = Persons.at(static_cast<std::size_t>(form % 6));
            const auto& other = number == Sing ? Plural : Sing;
            quiz.formIsAsked = true;
            for (const Identification& wrong : {Identification{classRow + 1, tense, person, number},
                                                Identification{-1, tense, person, number},
                                                Identification{classRow, tense + 1, person, number},
                                                Identification{classRow, -1, person, number},
                                                Identification{classRow, tense, person % 3 + 1, number},
                                                Identification{classRow, tense, person, other}})
                EXPECT_FALSE(verbdrills::judgeIdentification(wrong));
            EXPECT_TRUE(quiz.formIsAsked);
            EXPECT_TRUE(verbdrills::judgeIdentification({classRow, tense, person, number}));
            EXPECT_FALSE(quiz.formIsAsked);
        }
    EXPECT_EQ(shell::settings.ExerciseType, "Quiz");
}

} // namespace
