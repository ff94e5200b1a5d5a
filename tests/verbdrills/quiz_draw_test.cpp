#include "shell/settings.h"
#include "tests/support/fresh_state.h"
#include "verbdrills/quiz_draw.h"
#include "verbdrills/verb_question.h"
#include "verbs/paradigm.h"
#include "verbs/verb_list_file.h"
#include "verbs/verb_tables.h"

#include <algorithm>
#include <initializer_list>
#include <set>
#include <vector>

namespace {

using platform::flagOf;
using shell::settings;
using verbdrills::verbQuiz;
using verbs::verbTables;

// Tenses as a set of bits, present indicative first.
using TenseSet = unsigned;
constexpr TenseSet AllTenses = (1U << 21U) - 1;
constexpr TenseSet ActiveTenses = (1U << 11U) - 1;
constexpr TenseSet PassiveTenses = AllTenses & ~ActiveTenses;

constexpr TenseSet tense(int row)
{
    return 1U << static_cast<unsigned>(row);
}

std::vector<TenseSet> sampleOfTenses()
{
    std::vector<TenseSet> sets = {
        AllTenses,       ActiveTenses,         PassiveTenses,        0b1111000000U, 0b101010101010101010101U,
        0b110000000000U, tense(0) | tense(20), tense(10) | tense(16)};
    for (int first = 0; first < 21; ++first)
        for (int second = first; second < 21; ++second)
            sets.push_back(tense(first) | tense(second));
    return sets;
}

class QuizDraw : public tests::FreshState {
protected:
    QuizDraw()
    {
        tests::copySample("verbs.cfg");
        verbs::readVerbList("verbs.cfg");
        includeClasses({1});
        includeTenses(AllTenses);
        verbdrills::askForm();
        verbQuiz = {};
        fake.beeps = 0;
    }

    static void includeClassBits(unsigned classes)
    {
        for (int i = 0; i < 8; ++i)
            settings.QuizConjInclude[i] = flagOf((classes >> static_cast<unsigned>(i) & 1U) != 0);
    }

    static void includeClasses(std::initializer_list<int> classes)
    {
        settings.QuizConjInclude.fill(platform::FlagFalse);
        for (const int verbClass : classes)
            settings.QuizConjInclude[verbClass - 1] = platform::FlagTrue;
    }

    static void includeTenses(TenseSet tenses)
    {
        for (int row = 0; row < 21; ++row)
            settings.QuizTenseInclude[row] = flagOf((tenses & tense(row)) != 0);
    }

    static int drawnClass()
    {
        EXPECT_TRUE(verbdrills::drawForm());
        return verbQuiz.QuizConjugation;
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

    static void expectIncludedForm()
    {
        const int verbClass = verbQuiz.QuizConjugation;
        EXPECT_EQ(settings.QuizConjInclude[verbClass - 1], platform::FlagTrue);
        EXPECT_FALSE(verbTables.Forms[verbClass][verbQuiz.QuizRow].empty());
        EXPECT_LT(verbQuiz.QuizRow, 126);
        if (verbClass <= verbs::Esse) {
            EXPECT_EQ(settings.QuizTenseInclude[verbQuiz.QuizAnswerTense], platform::FlagTrue);
        }
    }
};

TEST_F(QuizDraw, AnyChoiceAsksAnIncludedFormOrNone)
{
    constexpr unsigned RegularClasses = 0b00011111;
    constexpr unsigned EsseBit = 0b00100000;
    constexpr unsigned VelleBit = 0b01000000;
    for (const TenseSet tenses : sampleOfTenses())
        for (unsigned classes = 1; classes < 256; ++classes) {
            verbQuiz = {};
            includeClassBits(classes);
            includeTenses(tenses);
            const bool canBeAsked = (classes & RegularClasses) != 0 || (classes & VelleBit) != 0 ||
                                    ((classes & EsseBit) != 0 && (tenses & ActiveTenses) != 0);
            for (int draw = 0; draw < 2; ++draw) {
                ASSERT_EQ(verbdrills::drawForm(), canBeAsked) << classes << " " << tenses;
                if (canBeAsked)
                    expectIncludedForm();
            }
        }
}

TEST_F(QuizDraw, NoTenseLeavesOnlyVelleAndTheRowKeptForFerre)
{
    includeTenses(0);
    includeClasses({1, 2, 3, 4, 5, 6});
    EXPECT_FALSE(verbdrills::drawForm());
    includeClasses({1, 6, 8});
    EXPECT_FALSE(verbdrills::drawForm());
    verbQuiz.QuizRow = 5;
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(drawnClass(), verbs::Ferre);
    includeClasses({1, 7});
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(drawnClass(), verbs::Velle);
    includeClassBits(0);
    EXPECT_FALSE(verbdrills::drawForm());
}

TEST_F(QuizDraw, NeverAsksTheLastFormOfARegularClass)
{
    includeClasses({2});
    std::set<int> expected;
    for (int row = 1; row <= 125; ++row)
        expected.insert(row);
    for (const int emptyImperative : {61, 63, 64, 66})
        expected.erase(emptyImperative);
    EXPECT_EQ(rowsDrawnIn(6000), expected);
}

TEST_F(QuizDraw, OneClassAndOneTenseAskOnlyThatBlock)
{
    includeClasses({4});
    includeTenses(tense(20));
    EXPECT_EQ(rowsDrawnIn(200), (std::set<int>{121, 122, 123, 124, 125}));
    includeClasses({6});
    includeTenses(tense(10));
    EXPECT_EQ(rowsDrawnIn(100), (std::set<int>{62, 65}));
}

TEST_F(QuizDraw, VelleIsNotBoundToTheTenses)
{
    includeClasses({7});
    includeTenses(tense(15));
    const std::set<int> rows = rowsDrawnIn(2000);
    EXPECT_EQ(rows.size(), 60U);
    EXPECT_EQ(*rows.rbegin(), 60);
}

TEST_F(QuizDraw, FerreIsAskedAtTheRowDrawnBefore)
{
    includeClasses({8});
    EXPECT_FALSE(verbdrills::drawForm());
    includeClasses({3});
    includeTenses(tense(13));
    EXPECT_TRUE(verbdrills::drawForm());
    const int row = verbQuiz.QuizRow;
    includeClasses({8});
    includeTenses(tense(0));
    EXPECT_EQ(rowsDrawnIn(30), std::set<int>{row});
    EXPECT_EQ(verbQuiz.QuizConjugation, verbs::Ferre);
}

// esse and velle always have the form drawn, so that every draw is one question.
TEST_F(QuizDraw, ClassesTakeTurnsUntilTheMemoryStartsAfresh)
{
    includeClasses({6, 7});
    includeTenses(tense(0));
    bool sameAcrossTheStart = false;
    for (int round = 0; round < 20; ++round) {
        for (int pair = 0; pair < 10; ++pair) {
            const int first = drawnClass();
            EXPECT_NE(drawnClass(), first);
        }
        const int last = drawnClass();
        const int firstAfresh = drawnClass();
        sameAcrossTheStart = sameAcrossTheStart || firstAfresh == last;
        EXPECT_NE(drawnClass(), firstAfresh);
        verbQuiz = {};
    }
    EXPECT_TRUE(sameAcrossTheStart);
}

TEST_F(QuizDraw, FormsCarryMarksThoughMarksAreOff)
{
    for (const auto shown : {platform::FlagFalse, platform::FlagTrue}) {
        settings.ShowVowelLength = shown;
        settings.VowelMark = shown == platform::FlagTrue ? ":" : "";
        verbTables.Forms = {};
        ASSERT_TRUE(verbdrills::askForm());
        EXPECT_TRUE(verbTables.Forms[verbs::FirstConjugation][2].ends_with("a:s"));
        EXPECT_TRUE(verbTables.Forms[verbs::FourthConjugation][2].ends_with("i:s"));
        EXPECT_EQ(verbTables.Forms[verbs::Velle][2], "vi:s");
        EXPECT_EQ(settings.VowelMark, shown == platform::FlagTrue ? ":" : "");
    }
}

TEST_F(QuizDraw, TwoBeepsAnnounceEveryFormHoweverManyDrawsItTakes)
{
    includeTenses(tense(10));
    for (int asked = 1; asked <= 40; ++asked) {
        ASSERT_TRUE(verbdrills::askForm());
        EXPECT_EQ(fake.beeps, 2 * asked);
        EXPECT_TRUE(verbQuiz.formIsAsked);
    }
    includeClassBits(0);
    EXPECT_FALSE(verbdrills::askForm());
    EXPECT_EQ(fake.beeps, 80);
    EXPECT_FALSE(verbQuiz.formIsAsked);
}

TEST_F(QuizDraw, OnlyADrilledClassHasATitle)
{
    ASSERT_TRUE(verbdrills::askForm());
    EXPECT_EQ(verbdrills::titleOfFormAsked(), "");
    EXPECT_EQ(verbQuiz.TenseHeading, "");
    verbs::currentParadigm.ConjugationCode = verbs::FirstConjugation;
    ASSERT_TRUE(verbdrills::askForm());
    EXPECT_EQ(verbdrills::titleOfFormAsked(), "First Conjugation");
    EXPECT_EQ(verbQuiz.TenseHeading, "Present Indicative");
}

} // namespace
