#pragma once

#include "platform/flag.h"
#include "platform/table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace shell {

/// The values of `CurrentLanguage`. A settings file may hold any other; windows then leave their captions.
namespace language {
inline constexpr std::string_view English = "English";
inline constexpr std::string_view French = "French";
inline constexpr std::string_view Italian = "Italian";
inline constexpr std::string_view German = "German";
inline constexpr std::string_view Spanish = "Spanish";
inline constexpr std::string_view Latin = "Latin";
} // namespace language

/// The values of `QuestionOrder`.
namespace question_order {
inline constexpr std::string_view Random = "Random";
inline constexpr std::string_view Sequential = "Sequential";
} // namespace question_order

/// The values of `CaseOrder`: the initials of the five cases in their order.
namespace case_order {
inline constexpr std::string_view NGDAAb = "NGDAAb";
inline constexpr std::string_view NAGDAb = "NAGDAb";
} // namespace case_order

/// The values of `ExerciseType`.
namespace exercise {
inline constexpr std::string_view Declination = "Declination";
inline constexpr std::string_view Conjugation = "Conjugation";
inline constexpr std::string_view Pronouns = "Pronouns";
inline constexpr std::string_view Vcabtester = "Vcabtester";
inline constexpr std::string_view Quiz = "Quiz";
inline constexpr std::string_view Review = "Review";
} // namespace exercise

/// The values of `MainWindowState`; any other leaves a window as it is.
namespace window_state {
inline constexpr std::int16_t Normal = 0;
inline constexpr std::int16_t Maximised = 2;
} // namespace window_state

inline constexpr int ShortestDelay = 1;
inline constexpr int LongestDelay = 100;

/// What every window shares. There is one, `settings`; assigning `{}` to it gives the program's first state.
struct Settings {
    std::string CurrentLanguage{language::English};
    std::string QuestionOrder{question_order::Sequential};
    std::string CaseOrder{case_order::NGDAAb};

    platform::Flag SoundOn = platform::FlagFalse;
    platform::Flag ShowVowelLength = platform::FlagFalse;
    platform::Flag SaveSettingsOnExit = platform::FlagTrue;

    /// ":" or "": what the generators write after a long vowel.
    std::string VowelMark;

    /// Length of the pause after an answer, in seconds.
    std::int32_t DelaySeconds = 2;

    /// The drill that is running: the feedback windows look it up by this name.
    std::string ExerciseType;

    std::int16_t AnsweredCount = 0;
    std::int16_t RightCount = 0;
    std::int16_t ScorePercent = 0;

    std::int16_t MainWindowState = window_state::Maximised;

    /// Changes of the settings since the program began. Nothing reads it.
    std::int16_t SettingsChangeCount = 0;

    /// Short name of the window that last became active. Nothing reads it.
    std::string ActiveWindowName;

    /// Classes (entry i: class i + 1) and tense blocks (entry t: block t + 1) that the verb quiz asks.
    platform::Table<platform::Flag, 31> QuizConjInclude;
    platform::Table<platform::Flag, 51> QuizTenseInclude;

    /// Paradigms for the noun quiz; not kept in the settings file. Nothing reads it.
    platform::Table<platform::Flag, 31> NounQuizParadigmInclude;

    /// Cases for the noun quiz, likewise. Nothing reads it.
    platform::Table<platform::Flag, 51> NounQuizCaseInclude;

    std::string SettingsFileVersion = "6";
};

inline Settings settings;

/// Raises `SettingsChangeCount` by one, up to the most it can hold.
void countSettingsChange();

/// What the main window's menus change. These raise `SettingsChangeCount`.
void chooseLanguage(std::string_view language);
void chooseCaseOrder(std::string_view caseOrder);
void chooseQuestionOrder(std::string_view questionOrder);
void switchSound(bool on);

/// Sets `SaveSettingsOnExit`; counts no change.
void switchSaving(bool saved);

/// Sets `ShowVowelLength`, and `VowelMark` with it; the verb list has to be read again afterwards. Counts no
/// change.
void switchVowelLength(bool shown);

} // namespace shell
