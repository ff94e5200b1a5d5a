#pragma once

#include "platform/flag.h"
#include "platform/table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vocabulary {

/// The values of the tester's order.
namespace order {
inline constexpr std::string_view Sequential = "sequential";
inline constexpr std::string_view Random = "random";
} // namespace order

/// The values of the prompt language: "English" asks with the word and expects its translation, "Latin" the
/// other way round, and "Mixed" draws one of the two for each question.
namespace prompt {
inline constexpr std::string_view English = "English";
inline constexpr std::string_view Mixed = "Mixed";
inline constexpr std::string_view Latin = "Latin";
} // namespace prompt

inline constexpr std::string_view DefaultListName = "vr-vcab.lst";

/// The last word that is kept count of. A list may be longer: the word after this one ends the program, by a
/// std::out_of_range that says so.
inline constexpr int LastCountedWord = 150;

/// A word that was answered right more often than this is learned.
inline constexpr int RightAnswersToLearn = 5;

/// In random order every so many questions a missed word comes back.
inline constexpr int QuestionsToMissedWord = 5;

/// Where the tester stands. There is one, `vocabularyTester`; assigning `{}` resets it. The word that is
/// asked is `vocabularyList.CurrentWord`.
struct VocabularyTester {
    template <typename Value>
    using ByWord = platform::Table<Value, LastCountedWord + 1>;

    std::string Order{order::Sequential};
    std::string PromptLanguage{prompt::English};

    /// The answer that was judged last. Nothing reads it.
    std::string LastAnswer;

    ByWord<std::int16_t> RightAnswers;
    ByWord<std::int16_t> Misses;
    ByWord<platform::Flag> Omitted;

    /// Questions in random order since a missed word was asked, up to `QuestionsToMissedWord`.
    std::int16_t FifthQuestionCounter = 0;
    std::int16_t MostMissedWord = 0;

    /// True while the current word is asked; else no word of the list can be.
    platform::Flag WordIsAsked = platform::FlagFalse;

    /// True where the current word is asked with its translation.
    platform::Flag AsksWithTranslation = platform::FlagFalse;
};

inline VocabularyTester vocabularyTester;

/// Begins to test the list in memory at its first word, or the first after it that can be asked. The counts,
/// misses and omissions stay.
void beginTest();

/// Clears the counts, misses and omissions, for another list; keeps the order and the prompt language.
void clearCounts();

/// Chooses which side of the current word is asked, as the prompt language says. A word without a translation
/// is always asked with the word.
void chooseSide();

/// What the current word is asked with, what is expected, and its hint; empty while no word is asked.
std::string questionText();
std::string expectedAnswer();
std::string hintText();

/// Whether the hint would give the answer away: where the word itself is expected.
bool hintGivesAnswerAway();

/// What came of an answer. "?" asks for the right one, and is none itself.
enum class Judgement { Right, Wrong, AnswerWanted, NothingAsked };

/// Keeps an answer as `LastAnswer` and judges it letter by letter; a right one counts for the current word.
Judgement judge(const std::string& answer);

/// Counts a wrong answer for the current word.
void countMiss();

/// Leaves the current word out from the next question on, or no longer. Where no word was asked, the current
/// one is asked once it is no longer left out.
void omitCurrentWord(bool omitted);
bool currentWordIsOmitted();

/// The next-word step after its pause, in the tester's order: chooses the word and the side that is asked.
/// Omitted and empty words are passed over. Where that leaves only the previous word, it is asked again;
/// where it leaves none, none is asked and the current word stays.
///
/// In random order the program ends at once, without saving, as soon as a drawn word is learned, and on an
/// empty list.
void goToNextWord(std::string_view order);

} // namespace vocabulary
