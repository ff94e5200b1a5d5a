#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <algorithm>
#include <set>

namespace {

using namespace vocabulary;

constexpr auto Sequential = order::Sequential;
constexpr auto Random = order::Random;

using VocabularyTest = tests::FreshState;

// Words "1", "2" and so on, that mean "t1", "t2", with the hints "h1", "h2".
void test(int count, const std::set<int>& empty = {})
{
    vocabularyList = {};
    vocabularyTester = {};
    vocabularyList.WordCount = static_cast<std::int16_t>(count);
    for (int number = 1; number <= count; ++number)
        if (const std::string name = std::to_string(number); !empty.contains(number))
            vocabularyList.Loaded[number] = {name, "t" + name, "h" + name};
    beginTest();
}

std::vector<int> nextWords(std::string_view order, std::size_t count)
{
    std::vector<int> words(count);
    for (int& word : words) {
        goToNextWord(order);
        word = vocabularyList.CurrentWord;
    }
    return words;
}

TEST_F(VocabularyTest, PassesOverOmittedAndEmptyWordsAndWaitsWhereNoneIsLeft)
{
    const std::tuple<int, std::set<int>, std::set<int>, int, std::vector<int>, bool> walks[] = {
        // words, empty ones, omitted ones, the current one, what comes next, whether it is asked
        {6, {}, {}, 4, {5, 6, 1, 2, 3, 4, 5}, true},
        {5, {3}, {2, 5}, 1, {4, 1, 4}, true},
        {3, {}, {1, 3}, 2, {2, 2}, true},
        {1, {}, {}, 1, {1, 1}, true},
        {3, {}, {1, 2, 3}, 2, {2, 2}, false},
        {3, {1, 2, 3}, {}, 1, {1, 1}, false},
    };
    for (const auto order : {Sequential, Random})
        for (const auto& [words, empty, omitted, from, next, asked] : walks) {
            test(words, empty);
            for (const int number : omitted)
                vocabularyTester.Omitted[number] = platform::FlagTrue;
            vocabularyList.CurrentWord = static_cast<std::int16_t>(from);
            const auto came = nextWords(order, order == Random ? 100 : next.size());
            EXPECT_EQ(std::set(came.begin(), came.end()), std::set(next.begin(), next.end())) << order;
            EXPECT_TRUE(order == Random || came == next) << words << from;
            EXPECT_TRUE(words != 6 || std::ranges::adjacent_find(came) == came.end()) << "asked twice";
            EXPECT_EQ(judge("wrong"), asked ? Judgement::Wrong : Judgement::NothingAsked);
            EXPECT_EQ(hintText(), asked ? "h" + std::to_string(came.back()) : "");
        }
}

TEST_F(VocabularyTest, EndsTheProgramAtTheFirstLearnedWordThatIsDrawnEvenAnOmittedOne)
{
    test(2);
    vocabularyTester.Omitted[2] = platform::FlagTrue;
    for (const int right : {5, 6}) {
        EXPECT_FALSE(fake.exitStatus);
        vocabularyTester.RightAnswers[2] = static_cast<std::int16_t>(right);
        nextWords(Random, 20);
    }
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(VocabularyTest, BringsTheMostMissedWordBackAtEveryFifthDraw)
{
    test(50);
    nextWords(Random, 8);
    vocabularyList.CurrentWord = 20;
    countMiss();
    EXPECT_EQ(nextWords(Random, 1), std::vector{20}) << "the first miss does not wait for five more";
    vocabularyTester.Misses[30] = vocabularyTester.Misses[40] = 3;
    const auto came = nextWords(Random, 20);
    EXPECT_TRUE(came[4] == 30 && came[9] == 30 && came[14] == 30 && came[19] == 30);
    EXPECT_LT(std::ranges::count(came, 30), 8) << "in between, any word is drawn";
    vocabularyTester.Omitted[30] = vocabularyTester.Omitted[40] = platform::FlagTrue;
    nextWords(Sequential, 3);
    EXPECT_EQ(nextWords(Random, 5).back(), 20) << "counts what is asked in random order alone";
}

TEST_F(VocabularyTest, StopsAtTheFirstWordThatIsNotKeptCountOf)
{
    for (const auto order : {Sequential, Random}) {
        test(order == Random ? 300 : 151);
        EXPECT_EQ(nextWords(Sequential, 149).back(), 150);
        EXPECT_THROW(nextWords(order, 50), std::out_of_range) << order;
    }
}

TEST_F(VocabularyTest, AsksTheSideThatThePromptLanguageSaysAndJudgesLetterByLetter)
{
    test(3);
    for (const std::string answer : {"T1", "t1 ", "1", "", "t1"})
        EXPECT_EQ(judge(answer), answer == "t1" ? Judgement::Right : Judgement::Wrong) << answer;
    EXPECT_EQ(vocabularyTester.RightAnswers[1], 1);
    vocabularyTester.PromptLanguage = prompt::Latin;
    vocabularyList.Loaded[3].translation.clear();
    nextWords(Sequential, 1);
    EXPECT_EQ(questionText() + expectedAnswer(), "t22");
    vocabularyTester.PromptLanguage = prompt::Mixed;
    std::set<std::string> questions;
    for (int i = 0; i < 60; ++i, nextWords(Sequential, 1))
        questions.insert(questionText());
    EXPECT_EQ(questions, (std::set<std::string>{"1", "t1", "2", "t2", "3"})) << "never a side that is empty";
}

} // namespace
