#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/quiz_inclusion.h"
#include "verbdrills/verb_question.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <bit>
#include <set>
#include <vector>

namespace {

using namespace verbdrills;
using shell::settings;
using verbs::verbTables;

// Classes and tenses as sets of bits, the first conjugation and the present indicative first.
using Bits = unsigned;
constexpr Bits AllTenses = (1U << 21U) - 1;
constexpr Bits ActiveTenses = (1U << 11U) - 1;

constexpr Bits bit(int number)
{
    return 1U << static_cast<unsigned>(number);
}

constexpr Bits EsseBit = bit(verbs::Esse - 1);
constexpr Bits VelleBit = bit(verbs::Velle - 1);

QuizTicks ticks(Bits classes, Bits tenses)
{
    QuizTicks made;
    for (int i = 0; i < made.classes.size(); ++i)
        made.classes[i] = (classes & bit(i)) != 0;
    for (int t = 0; t < made.tenses.size(); ++t)
        made.tenses[t] = (tenses & bit(t)) != 0;
    return made;
}

class VerbQuiz : public tests::FreshState {
protected:
    VerbQuiz()
    {
        tests::copySample("verbs.cfg");
        verbs::readVerbList("verbs.cfg");
        storeTicks(ticks(bit(0), AllTenses));
        askForm();
        verbQuiz = {};
    }

    // The forms drawn. Each is identified by all its parts alone: six forms to a tense, the persons of the
    // singular before those of the plural.
    static std::set<int> drawnFrom(Bits classes, Bits tenses, int draws = 6000)
    {
        storeTicks(ticks(classes, tenses));
        std::set<int> rows;
        for (int i = 0; i < draws; ++i) {
            verbQuiz.formIsAsked = drawForm();
            const int form = verbQuiz.QuizRow - 1;
            const bool singular = form % 6 < 3;
            Identification said = {verbQuiz.QuizConjugation - 1, form / 6, form % 3 + 1,
                                   singular ? "Plural" : "Sing"};
            EXPECT_FALSE(judgeIdentification(said));
            EXPECT_TRUE(verbQuiz.formIsAsked);
            said.number = singular ? "Sing" : "Plural";
            EXPECT_TRUE(judgeIdentification(said));
            EXPECT_FALSE(verbQuiz.formIsAsked);
            rows.insert(verbQuiz.QuizRow);
        }
        EXPECT_EQ(settings.ExerciseType, "Quiz");
        return rows;
    }
};

// Ferre alone has no row yet. A choice that is taken is filled up with the first class and tense where it is
// too small.
TEST_F(VerbQuiz, AsksAnIncludedFormOrNoneWhateverIsChosen)
{
    std::vector<Bits> tenseSets = {0, AllTenses, ActiveTenses, AllTenses & ~ActiveTenses};
    for (int first = 0; first < 21; ++first)
        for (int second = first; second < 21; ++second)
            tenseSets.push_back(bit(first) | bit(second));
    for (const Bits tenses : tenseSets)
        for (Bits classes = 0; classes < 256; ++classes) {
            takeTicks(ticks(classes, tenses));
            EXPECT_EQ(ticksOfQuiz(), ticks(std::max(classes, 1U),
                                           std::has_single_bit(tenses) ? tenses | 1U : std::max(tenses, 1U)));
            verbQuiz = {};
            storeTicks(ticks(classes, tenses));
            const bool canBeAsked = ((classes & 0b11111U) != 0 && tenses != 0) ||
                                    ((classes & EsseBit) != 0 && (tenses & ActiveTenses) != 0) ||
                                    (classes & VelleBit) != 0;
            for (int draw = 0; draw < 2; ++draw) {
                ASSERT_EQ(drawForm(), canBeAsked) << classes << " " << tenses;
                const int verbClass = canBeAsked ? verbQuiz.QuizConjugation : 0;
                EXPECT_EQ(verbTables.Forms[verbClass][verbQuiz.QuizRow].empty(), !canBeAsked);
                EXPECT_TRUE(!canBeAsked || (classes & bit(verbClass - 1)) != 0);
                EXPECT_TRUE(!canBeAsked || verbClass > verbs::Esse ||
                            (tenses & bit(verbQuiz.QuizAnswerTense)) != 0);
            }
        }
}

TEST_F(VerbQuiz, AsksEveryFormButTheLastOfARegularClassAndVelleInAnyTenseAndFerreAtTheRowBefore)
{
    for (const auto& [verbClass, last] :
         {std::pair{verbs::SecondConjugation, 125}, {verbs::Esse, 65}, {verbs::Velle, 60}}) {
        std::set<int> expected;
        for (int row = 1; row <= last; ++row)
            if (!verbTables.Forms[verbClass][row].empty())
                expected.insert(row);
        EXPECT_EQ(drawnFrom(bit(verbClass - 1), verbClass == verbs::Velle ? bit(15) : AllTenses), expected);
    }
    const std::set<int> before = {verbQuiz.QuizRow};
    EXPECT_EQ(drawnFrom(bit(verbs::Ferre - 1), bit(20), 30), before);
}

// esse and velle always have the form drawn, so that every draw is one question.
TEST_F(VerbQuiz, LetsClassesTakeTurnsUntilItsMemoryStartsAfresh)
{
    storeTicks(ticks(EsseBit | VelleBit, bit(0)));
    bool sameAcrossTheStart = false;
    for (int round = 0; round < 20; ++round) {
        verbQuiz = {};
        std::string drawn;
        while (drawn.size() < 44) {
            EXPECT_TRUE(drawForm());
            drawn += verbQuiz.QuizConjugation == verbs::Esse ? 'e' : 'v';
        }
        // Pairs, but the 21st draw and the 42nd are each the last before a new start.
        for (const std::size_t second : {1U, 3U, 5U, 7U, 9U, 11U, 13U, 15U, 17U, 19U, 22U, 24U, 40U, 43U})
            EXPECT_NE(drawn[second], drawn[second - 1]) << drawn;
        sameAcrossTheStart = sameAcrossTheStart || drawn[21] == drawn[20];
    }
    EXPECT_TRUE(sameAcrossTheStart);
}

TEST_F(VerbQuiz, MarksItsFormsThoughMarksAreOffAndAnnouncesThemByTwoBeeps)
{
    for (const std::string mark : {"", ":"}) {
        settings.ShowVowelLength = platform::flagOf(!mark.empty());
        settings.VowelMark = mark;
        verbTables.Forms = {};
        fake.beeps = 0;
        ASSERT_TRUE(askForm());
        EXPECT_EQ(fake.beeps, 2);
        EXPECT_EQ(verbTables.Forms[verbs::Velle][2], "vi:s");
        EXPECT_EQ(settings.VowelMark, mark);
    }
}

} // namespace
