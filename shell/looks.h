#pragma once

#include <array>
#include <optional>

namespace shell {

/// The values of `TextSize`, in percent of the desktop's own size of type.
inline constexpr std::array TextSizes = {80, 90, 100, 115, 130, 150, 175, 200};
inline constexpr int DesktopTextSize = 100;

/// How the learner likes to see things. There is one, `looks`; assigning `{}` to it gives the program's first
/// state.
struct Looks {
    /// One of `TextSizes`.
    int TextSize = DesktopTextSize;

    /// Long vowels are shown with macrons where they cannot be typed.
    bool ShowMacrons = false;

    /// An exercise was opened: the main window no longer says how to begin.
    bool FirstStepsDone = false;

    /// Judged answers are kept, to be drawn and asked again.
    bool KeepAnswers = true;

    /// Whether the verb quiz asks the first conjugation, and the present indicative: the settings file has no
    /// line for them. Empty where that was not kept.
    std::optional<bool> QuizFirstConjugation;
    std::optional<bool> QuizPresent;

    bool operator==(const Looks&) const = default;
};

inline Looks looks;

/// The size next to `TextSize`; itself where there is no further one.
int largerTextSize();
int smallerTextSize();

} // namespace shell
