#pragma once

#include "shell/language_texts.h"

#include <string_view>

namespace shell {

// clang-format off
//                                              English   French    Italian   German      Spanish    Latin
inline constexpr LanguageTexts RightTexts = {"Right!", "Bon!",   "Right!", "Richtig!", "¡Bien!",  "Verum"};
inline constexpr LanguageTexts WrongTexts = {"Wrong!", "Wrong!", "Wrong!", "Falsch!",  "¡Mal!",   "Falsum"}; // sic: not "Non!"
// clang-format on

inline constexpr std::string_view RightSound = "right.wav";
inline constexpr std::string_view WrongSound = "wrong.wav";

/// The window that announces an answer while its feedback runs.
class FeedbackSurface {
public:
    FeedbackSurface() = default;
    FeedbackSurface(const FeedbackSurface&) = delete;
    FeedbackSurface& operator=(const FeedbackSurface&) = delete;
    virtual ~FeedbackSurface() = default;

    virtual void showSurface() = 0;
    virtual void hideSurface() = 0;
};

/// The feedback to a right answer: counts it, sounds, lets the running drill grey its box and show the score,
/// pauses, moves the drill on, hides the surface and gives the focus to the next question.
///
/// While any feedback or hint of this drill is up, nothing happens. When the drill is left during the pause,
/// it is not moved on.
void giveRightFeedback(FeedbackSurface& surface);

/// The feedback to a wrong answer, likewise: counts it, pauses, hides the surface and asks the same again.
void giveWrongFeedback(FeedbackSurface& surface);

} // namespace shell
