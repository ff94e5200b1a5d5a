#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <set>
#include <vector>

namespace {

using platform::flagOf;
using shell::settings;
using verbdrills::verbQuiz;
using verbs::verbTables;

// Classes and tenses as sets of bits, the first conjugation and the present indicative first.
using Bits = unsigned;
constexpr Bits AllTenses = (1U << 21U) - 1;
constexpr Bits ActiveTenses = (1U << 11U) - 1;

constexpr Bits bit(int number)
{
    return 1U << static_cast<unsigned>(number);
}

constexpr Bits RegularClasses = 0b11111U;
constexpr Bits EsseBit = bit(verbs::Esse - 1);
constexpr Bits VelleBit = bit(verbs::Velle - 1);

class QuizDraw : public tests::FreshState {
protected:
    QuizDraw()
    {
        tests::copySample("verbs.cfg");
        verbs::readVerbList("verbs.cfg");
        include(bit(0), AllTenses);
        verbdrills::askForm();
        verbQuiz = {};
    }

    static void include(Bits classes, Bits tenses)
    {
        for (int i = 0; i < 8; ++i)
            settings.QuizConjInclude[i] = flagOf((classes & bit(i)) != 0);
        for (int row = 0; row < 21; ++row)
            settings.QuizTenseInclude[row] = flagOf((tenses & bit(row)) != 0);
    }

    static std::set<int> rowsDrawnIn(int draws)
    {
        std::set<int> rows;
        for (int i = 0; i < draws; ++i) {
            EXPECT_TRUE(verbdrills::drawForm());
            rows.insert(verbQuiz.QuizRow);
        }
        return rows;
    }
};

// Ferre alone has no row yet, and velle goes without its tense.
TEST_F(QuizDraw, AnyChoiceAsksAnIncludedFormOrNone)
{
    std::vector<Bits> tenseSets = {0, AllTenses, ActiveTenses, AllTenses & ~ActiveTenses};
    for (int first = 0; first < 21; ++first)
        for (int second = first; second < 21; ++second)
            tenseSets.push_back(bit(first) | bit(second));
    for (const Bits tenses : tenseSets)
        for (Bits classes = 0; classes < 256; ++classes) {
            verbQuiz = {};
            include(classes, tenses);
            const bool canBeAsked = ((classes & RegularClasses) != 0 && tenses != 0) ||
                                    ((classes & EsseBit) != 0 && (tenses & ActiveTenses) != 0) ||
                                    (classes & VelleBit) != 0;
            for (int draw = 0; draw < 2; ++draw) {
                ASSERT_EQ(verbdrills::drawForm(), canBeAsked) << classes << " " << tenses;
                if (!canBeAsked)
                    continue;
                const int verbClass = verbQuiz.QuizConjugation;
                EXPECT_NE(classes & bit(verbClass - 1), 0U);
                EXPECT_FALSE(verbTables.Forms[verbClass][verbQuiz.QuizRow].empty());
                EXPECT_TRUE(verbClass > verbs::Esse || (tenses & bit(verbQuiz.QuizAnswerTense)) != 0);
            }
        }
}

TEST_F(QuizDraw, AsksEveryFormButTheLastOfARegularClassAndVelleInAnyTense)
{
    for (const auto& [verbClass, tenses, last] : {std::tuple{verbs::SecondConjugation, AllTenses, 125},
                                                  {verbs::Esse, AllTenses, 65},
                                                  {verbs::Velle, bit(15), 60}}) {
        include(bit(verbClass - 1), tenses);
        std::set<int> expected;
        for (int row = 1; row <= last; ++row)
            if (!verbTables.Forms[verbClass][row].empty())
                expected.insert(row);
        EXPECT_EQ(rowsDrawnIn(6000), expected);
    }
}

TEST_F(QuizDraw, FerreIsAskedAtTheRowDrawnBefore)
{
    include(bit(2), bit(13));
    EXPECT_TRUE(verbdrills::drawForm());
    const int row = verbQuiz.QuizRow;
    include(bit(verbs::Ferre - 1), bit(0));
    EXPECT_EQ(rowsDrawnIn(30), std::set<int>{row});
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::Ferre);
}

// esse and velle always have the form drawn, so that every draw is one question.
TEST_F(QuizDraw, ClassesTakeTurnsUntilTheMemoryStartsAfresh)
{
    include(EsseBit | VelleBit, bit(0));
    bool sameAcrossTheStart = false;
    for (int round = 0; round < 20; ++round) {
        verbQuiz = {};
        std::string drawn;
        while (drawn.size() < 23) {
            EXPECT_TRUE(verbdrills::drawForm());
            drawn += verbQuiz.QuizConjugation == verbs::Esse ? 'e' : 'v';
        }
        for (const std::size_t second : {1U, 3U, 5U, 7U, 9U, 11U, 13U, 15U, 17U, 19U, 22U})
            EXPECT_NE(drawn[second], drawn[second - 1]) << drawn;
        sameAcrossTheStart = sameAcrossTheStart || drawn[21] == drawn[20];
    }
    EXPECT_TRUE(sameAcrossTheStart);
}

TEST_F(QuizDraw, FormsCarryMarksThoughMarksAreOffAndTwoBeepsAnnounceThem)
{
    for (const std::string mark : {"", ":"}) {
        settings.ShowVowelLength = flagOf(!mark.empty());
        settings.VowelMark = mark;
        verbTables.Forms = {};
        fake.beeps = 0;
        ASSERT_TRUE(verbdrills::askForm());
        EXPECT_EQ(fake.beeps, 2);
        EXPECT_TRUE(verbTables.Forms[verbs::FirstConjugation][2].ends_with("a:s"));
        EXPECT_EQ(verbTables.Forms[verbs::Velle][2], "vi:s");
        EXPECT_EQ(settings.VowelMark, mark);
    }
}

} // namespace
