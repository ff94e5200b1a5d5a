#include "tests/support/fresh_state.h"
#include "vocabulary/vocabulary_list.h"
#include "vocabulary/vocabulary_tester.h"

#include <set>

namespace {

using vocabulary::goToNextWord;
using vocabulary::Judgement;
using vocabulary::vocabularyList;
using vocabulary::vocabularyTester;

constexpr auto Sequential = vocabulary::order::Sequential;
constexpr auto Random = vocabulary::order::Random;

class VocabularyTest : public tests::FreshState {
protected:
    // A list of `count` words that are asked as "1", "2" and so on.
    static void test(int count)
    {
        for (int number = 1; number <= count; ++number)
            vocabularyList.Loaded[number] = {std::to_string(number), "t" + std::to_string(number), "h"};
        vocabularyList.WordCount = static_cast<std::int16_t>(count);
        vocabulary::beginTest();
    }

    static void omit(std::initializer_list<int> numbers)
    {
        for (const int number : numbers)
            vocabularyTester.Omitted[number] = platform::FlagTrue;
    }

    static std::vector<int> nextWords(std::string_view order, int count)
    {
        std::vector<int> words;
        for (int i = 0; i < count; ++i) {
            goToNextWord(order);
            words.push_back(vocabularyList.CurrentWord);
        }
        return words;
    }

    static bool wordIsAsked() { return vocabularyTester.WordIsAsked == platform::FlagTrue; }
};

TEST_F(VocabularyTest, GoesThroughTheListInOrderAndBeginsAgain)
{
    test(3);
    EXPECT_EQ(vocabularyList.CurrentWord, 1);
    EXPECT_EQ(nextWords(Sequential, 4), (std::vector{2, 3, 1, 2}));
}

TEST_F(VocabularyTest, PassesOverOmittedAndEmptyWordsInEitherOrder)
{
    test(5);
    omit({2, 5});
    vocabularyList.Loaded[3].word.clear();
    EXPECT_EQ(nextWords(Sequential, 3), (std::vector{4, 1, 4}));
    const auto drawn = nextWords(Random, 100);
    EXPECT_EQ(std::set(drawn.begin(), drawn.end()), (std::set{1, 4}));
}

TEST_F(VocabularyTest, BeginsWithTheFirstWordThatCanBeAsked)
{
    vocabularyList.Loaded[1] = {"", "nothing", ""};
    vocabularyList.Loaded[2] = {"rosa", "rose", "f."};
    vocabularyList.WordCount = 2;
    vocabulary::beginTest();
    EXPECT_EQ(vocabulary::questionText(), "rosa");
    vocabularyList.Loaded[2].translation.clear();
    vocabularyTester.PromptLanguage = vocabulary::prompt::Latin;
    vocabulary::beginTest();
    EXPECT_EQ(vocabulary::questionText(), "rosa") << "never a translation that is not there";
}

TEST_F(VocabularyTest, AsksTheOnlyWordLeftAgainInEitherOrder)
{
    for (const auto order : {Sequential, Random}) {
        test(3);
        omit({1, 3});
        vocabularyList.CurrentWord = 2;
        EXPECT_EQ(nextWords(order, 3), (std::vector{2, 2, 2})) << order;
        EXPECT_TRUE(wordIsAsked());
        test(1);
        EXPECT_EQ(nextWords(order, 3), (std::vector{1, 1, 1})) << order;
        EXPECT_TRUE(wordIsAsked());
    }
}

TEST_F(VocabularyTest, WaitsWhereEveryWordIsLeftOutAndGoesOnOnceOneIsNot)
{
    for (const auto order : {Sequential, Random}) {
        test(3);
        omit({1, 2, 3});
        vocabularyList.CurrentWord = 2;
        EXPECT_EQ(nextWords(order, 2), (std::vector{2, 2})) << order;
        EXPECT_FALSE(wordIsAsked());
        EXPECT_EQ(vocabulary::questionText() + vocabulary::expectedAnswer() + vocabulary::hintText(), "");
        vocabulary::omitCurrentWord(false);
        EXPECT_TRUE(wordIsAsked());
        EXPECT_EQ(vocabulary::questionText(), "2");
        EXPECT_FALSE(fake.exitStatus);
    }
}

TEST_F(VocabularyTest, WaitsOnAListOfEmptyWords)
{
    for (const auto order : {Sequential, Random}) {
        vocabularyList.WordCount = 3;
        vocabulary::beginTest();
        EXPECT_FALSE(wordIsAsked());
        nextWords(order, 2);
        EXPECT_FALSE(wordIsAsked());
        EXPECT_EQ(vocabulary::judge("?"), Judgement::AnswerWanted);
        EXPECT_FALSE(fake.exitStatus);
    }
}

TEST_F(VocabularyTest, EndsTheProgramEvenAtALearnedWordThatIsOmitted)
{
    test(2);
    vocabularyTester.RightAnswers[2] = 6;
    omit({2});
    nextWords(Random, 20);
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(VocabularyTest, DrawsEveryWordAndNeverTheSameTwiceRunning)
{
    test(6);
    std::set<int> drawn;
    int before = vocabularyList.CurrentWord;
    for (const int word : nextWords(Random, 200)) {
        EXPECT_NE(word, before);
        drawn.insert(word);
        before = word;
    }
    EXPECT_EQ(drawn, (std::set{1, 2, 3, 4, 5, 6}));
}

TEST_F(VocabularyTest, EndsTheProgramAtTheFirstLearnedWordThatIsDrawn)
{
    test(2);
    vocabularyTester.RightAnswers[2] = 5;
    nextWords(Random, 20);
    EXPECT_FALSE(fake.exitStatus);
    vocabularyTester.RightAnswers[2] = 6;
    nextWords(Sequential, 20);
    EXPECT_FALSE(fake.exitStatus);
    vocabularyList.CurrentWord = 1;
    nextWords(Random, 1);
    EXPECT_EQ(fake.exitStatus, 0);
}

TEST_F(VocabularyTest, BringsTheMostMissedWordBackAtEveryFifthDraw)
{
    test(50);
    vocabularyTester.Misses[20] = 2;
    vocabularyTester.Misses[30] = 3;
    vocabularyTester.Misses[40] = 3;
    int comesBack = 0;
    for (int i = 1; i <= 20; ++i) {
        goToNextWord(Random);
        EXPECT_EQ(vocabularyTester.FifthQuestionCounter, i % 5) << i;
        comesBack += vocabularyList.CurrentWord == 30 && i % 5 == 0 ? 1 : 0;
    }
    EXPECT_EQ(comesBack, 4);
    EXPECT_EQ(vocabularyTester.MostMissedWord, 30);
}

TEST_F(VocabularyTest, BringsNoOmittedWordBackAndCountsOnlyQuestions)
{
    test(50);
    vocabularyTester.Misses[20] = 2;
    vocabularyTester.Misses[30] = 3;
    omit({30});
    nextWords(Random, 5);
    EXPECT_EQ(vocabularyTester.MostMissedWord, 20);
    vocabularyTester.Omitted.fill(platform::FlagTrue);
    nextWords(Random, 3);
    EXPECT_EQ(vocabularyTester.FifthQuestionCounter, 0);
}

TEST_F(VocabularyTest, KeepsTheFifthQuestionUntilAWordWasMissed)
{
    test(50);
    nextWords(Random, 9);
    EXPECT_EQ(vocabularyTester.FifthQuestionCounter, 5);
    vocabularyList.CurrentWord = 33;
    vocabulary::countMiss();
    EXPECT_EQ(nextWords(Random, 1).back(), 33);
    EXPECT_EQ(vocabularyTester.FifthQuestionCounter, 0);
    nextWords(Sequential, 3);
    EXPECT_EQ(vocabularyTester.FifthQuestionCounter, 0);
}

TEST_F(VocabularyTest, StopsAtTheFirstWordThatIsNotKeptCountOf)
{
    test(151);
    vocabularyList.CurrentWord = 149;
    goToNextWord(Sequential);
    EXPECT_EQ(vocabularyList.CurrentWord, 150);
    EXPECT_THROW(goToNextWord(Sequential), std::out_of_range);
    test(300);
    EXPECT_THROW(nextWords(Random, 50), std::out_of_range);
}

TEST_F(VocabularyTest, JudgesLetterByLetterAndCountsForTheWord)
{
    test(2);
    vocabularyList.Loaded[1] = {"Ro:ma", "Rome, Italy", "f."};
    for (const std::string wrong :
         {"rome, Italy", "Rome, Italy ", " Rome, Italy", "Rome> Italy", "Ro:ma", ""}) {
        EXPECT_EQ(vocabulary::judge(wrong), Judgement::Wrong) << wrong;
        EXPECT_EQ(vocabularyTester.LastAnswer, wrong);
    }
    EXPECT_EQ(vocabulary::judge("?"), Judgement::AnswerWanted);
    EXPECT_EQ(vocabularyTester.RightAnswers[1], 0);
    EXPECT_EQ(vocabulary::judge("Rome, Italy"), Judgement::Right);
    EXPECT_EQ(vocabularyTester.RightAnswers[1], 1);
    EXPECT_EQ(vocabularyTester.Misses[1], 0);
    vocabulary::countMiss();
    EXPECT_EQ(vocabularyTester.Misses[1], 1);
}

TEST_F(VocabularyTest, AsksTheSideThatThePromptLanguageSays)
{
    test(2);
    EXPECT_EQ(vocabulary::questionText(), "1");
    EXPECT_EQ(vocabulary::expectedAnswer(), "t1");
    vocabularyTester.PromptLanguage = vocabulary::prompt::Latin;
    goToNextWord(Sequential);
    EXPECT_EQ(vocabulary::questionText(), "t2");
    EXPECT_EQ(vocabulary::expectedAnswer(), "2");
    vocabularyTester.PromptLanguage = vocabulary::prompt::Mixed;
    std::set<std::string> questions;
    for (int i = 0; i < 40; ++i) {
        goToNextWord(Sequential);
        questions.insert(vocabulary::questionText());
    }
    EXPECT_EQ(questions, (std::set<std::string>{"1", "t1", "2", "t2"}));
}

TEST_F(VocabularyTest, BeginsAnewWithoutCountsButInTheSameOrder)
{
    test(3);
    vocabularyTester.Order = Random;
    vocabularyTester.PromptLanguage = vocabulary::prompt::Latin;
    vocabulary::countMiss();
    vocabulary::omitCurrentWord(true);
    vocabularyTester.FifthQuestionCounter = 3;
    vocabularyList.CurrentWord = 3;
    vocabulary::beginTest();
    EXPECT_EQ(vocabularyList.CurrentWord, 1);
    EXPECT_EQ(vocabularyTester.Misses[1], 0);
    EXPECT_FALSE(vocabulary::currentWordIsOmitted());
    EXPECT_EQ(vocabularyTester.FifthQuestionCounter, 0);
    EXPECT_EQ(vocabularyTester.Order, Random);
    EXPECT_EQ(vocabulary::questionText(), "t1");
}

TEST_F(VocabularyTest, OpensWithTheDefaultListAndPassesOverAMissingOne)
{
    EXPECT_EQ(vocabulary::openDefaultList(), "");
    EXPECT_FALSE(wordIsAsked());
    EXPECT_EQ(vocabulary::judge(""), Judgement::NothingAsked);
    tests::copySample("vr-vcab.lst");
    vocabularyTester.Order = Random;
    EXPECT_EQ(vocabulary::openDefaultList(), "");
    EXPECT_EQ(vocabularyTester.Order, Sequential);
    EXPECT_EQ(vocabulary::questionText(), "puella");
    EXPECT_EQ(vocabulary::hintText(), "puellae, f.");
    tests::writeFile("vr-vcab.lst", "rosa,rose,f.\nre:x");
    EXPECT_EQ(vocabulary::openDefaultList(),
              "vr-vcab.lst, line 2: the last word is cut off and was left out");
    EXPECT_EQ(vocabulary::questionText(), "rosa");
}

} // namespace
