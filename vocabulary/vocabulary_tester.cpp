#include "vocabulary/vocabulary_tester.h"

#include "platform/platform.h"
#include "platform/random.h"
#include "vocabulary/vocabulary_list.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

namespace vocabulary {

namespace {

constexpr std::string_view AnswerWish = "?";

const WordRecord& currentRecord()
{
    return vocabularyList.Loaded[vocabularyList.CurrentWord];
}

void raise(std::int16_t& count)
{
    if (count < std::numeric_limits<std::int16_t>::max())
        ++count;
}

int counted(int number)
{
    if (number <= LastCountedWord)
        return number;
    throw std::out_of_range("the test counts " + std::to_string(LastCountedWord) + " words: word " +
                            std::to_string(number) + " ends it");
}

bool canBeAsked(int number)
{
    return vocabularyTester.Omitted[counted(number)] != platform::FlagTrue &&
           !vocabularyList.Loaded[number].word.empty();
}

bool someWordCanBeAsked()
{
    for (int number = 1; number <= vocabularyList.WordCount; ++number)
        if (canBeAsked(number))
            return true;
    return false;
}

// One after the other, from past the last to the first; false where none can be asked.
bool findNextWord()
{
    for (int i = 0; i < vocabularyList.WordCount; ++i) {
        ++vocabularyList.CurrentWord;
        if (vocabularyList.CurrentWord > vocabularyList.WordCount)
            vocabularyList.CurrentWord = 1;
        if (canBeAsked(vocabularyList.CurrentWord))
            return true;
    }
    return false;
}

// One learned word is enough, and so is a list without words.
bool everythingIsLearned()
{
    int learned = 0;
    for (int number = 1; number <= vocabularyList.WordCount; ++number)
        if (vocabularyTester.RightAnswers[counted(vocabularyList.CurrentWord)] > RightAnswersToLearn) // sic
            ++learned;
    return learned == vocabularyList.WordCount;
}

enum class Draw { Found, NoneLeft, AllLearned };

// The previous word is the one drawn last, be it one that is passed over. A list of one word has no other.
Draw drawWord()
{
    const std::int16_t asked = vocabularyList.CurrentWord;
    const bool canEnd = someWordCanBeAsked();
    const bool hasAnother = vocabularyList.WordCount > 1;
    int previous = 0;
    do {
        platform::seedFromClock();
        previous = vocabularyList.CurrentWord;
        vocabularyList.CurrentWord = static_cast<std::int16_t>(platform::draw(vocabularyList.WordCount) + 1);
        if (everythingIsLearned())
            return Draw::AllLearned;
    } while (canEnd && ((hasAnother && vocabularyList.CurrentWord == previous) ||
                        !canBeAsked(vocabularyList.CurrentWord)));
    if (canEnd)
        return Draw::Found;
    vocabularyList.CurrentWord = asked;
    return Draw::NoneLeft;
}

void findMostMissedWord()
{
    int most = 0;
    vocabularyTester.MostMissedWord = 0;
    for (int number = 1; number <= vocabularyList.WordCount; ++number) {
        if (!canBeAsked(number) || vocabularyTester.Misses[number] <= most)
            continue;
        most = vocabularyTester.Misses[number];
        vocabularyTester.MostMissedWord = static_cast<std::int16_t>(number);
    }
}

void bringMissedWordBack()
{
    if (vocabularyTester.FifthQuestionCounter != QuestionsToMissedWord)
        return;
    findMostMissedWord();
    if (vocabularyTester.MostMissedWord == 0)
        return;
    vocabularyList.CurrentWord = vocabularyTester.MostMissedWord;
    vocabularyTester.FifthQuestionCounter = 0;
}

bool findRandomWord()
{
    const Draw drawn = drawWord();
    if (drawn == Draw::AllLearned)
        platform::current().endProgram(EXIT_SUCCESS);
    if (drawn != Draw::Found)
        return false;
    if (vocabularyTester.FifthQuestionCounter < QuestionsToMissedWord)
        ++vocabularyTester.FifthQuestionCounter;
    bringMissedWordBack();
    return true;
}

void askCurrentWord(bool asked)
{
    vocabularyTester.WordIsAsked = platform::flagOf(asked);
    if (asked)
        chooseSide();
}

} // namespace

void beginTest()
{
    vocabularyList.CurrentWord = 1;
    askCurrentWord(vocabularyList.WordCount > 0 && (canBeAsked(1) || findNextWord()));
}

void clearCounts()
{
    const std::string order = vocabularyTester.Order;
    const std::string promptLanguage = vocabularyTester.PromptLanguage;
    vocabularyTester = {};
    vocabularyTester.Order = order;
    vocabularyTester.PromptLanguage = promptLanguage;
}

void chooseSide()
{
    const bool bothSides = !currentRecord().translation.empty();
    const bool mixed = vocabularyTester.PromptLanguage == prompt::Mixed;
    const bool translation =
        mixed ? platform::draw(2) == 1 : vocabularyTester.PromptLanguage == prompt::Latin;
    vocabularyTester.AsksWithTranslation = platform::flagOf(bothSides && translation);
}

std::string questionText()
{
    if (vocabularyTester.WordIsAsked != platform::FlagTrue)
        return {};
    const bool translation = vocabularyTester.AsksWithTranslation == platform::FlagTrue;
    return translation ? currentRecord().translation : currentRecord().word;
}

std::string expectedAnswer()
{
    if (vocabularyTester.WordIsAsked != platform::FlagTrue)
        return {};
    const bool translation = vocabularyTester.AsksWithTranslation == platform::FlagTrue;
    return translation ? currentRecord().word : currentRecord().translation;
}

std::string hintText()
{
    return vocabularyTester.WordIsAsked == platform::FlagTrue ? currentRecord().hint : std::string();
}

bool hintGivesAnswerAway()
{
    return vocabularyTester.AsksWithTranslation == platform::FlagTrue;
}

Judgement judge(const std::string& answer)
{
    vocabularyTester.LastAnswer = answer;
    if (answer == AnswerWish)
        return Judgement::AnswerWanted;
    if (vocabularyTester.WordIsAsked != platform::FlagTrue)
        return Judgement::NothingAsked;
    if (answer != expectedAnswer())
        return Judgement::Wrong;
    raise(vocabularyTester.RightAnswers[vocabularyList.CurrentWord]);
    return Judgement::Right;
}

void countMiss()
{
    raise(vocabularyTester.Misses[vocabularyList.CurrentWord]);
}

void omitCurrentWord(bool omitted)
{
    vocabularyTester.Omitted[vocabularyList.CurrentWord] = platform::flagOf(omitted);
    const bool idle = vocabularyTester.WordIsAsked != platform::FlagTrue;
    if (idle && vocabularyList.WordCount > 0 && canBeAsked(vocabularyList.CurrentWord))
        askCurrentWord(true);
}

bool currentWordIsOmitted()
{
    return vocabularyTester.Omitted[vocabularyList.CurrentWord] == platform::FlagTrue;
}

void goToNextWord(std::string_view order)
{
    askCurrentWord(order == order::Random ? findRandomWord() : findNextWord());
}

} // namespace vocabulary
