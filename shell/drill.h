#pragma once

#include "shell/stay.h"

#include <string>
#include <string_view>

namespace shell {

/// What a drill does for the feedback windows. The drill's window implements it.
class Drill {
public:
    Drill() = default;
    Drill(const Drill&) = delete;
    Drill& operator=(const Drill&) = delete;
    virtual ~Drill() = default;

    /// Writes the score text into the drill's score label, where it has one.
    virtual void showScore(const std::string& text) = 0;

    /// Greys the box that was just answered right.
    virtual void greyAnsweredBox() = 0;

    /// Chooses the next question after a right answer, without giving it the focus yet.
    virtual void moveOn() = 0;

    /// Gives the focus to the question that `moveOn` chose.
    virtual void focusQuestion() = 0;

    /// Puts the same question again after a wrong answer.
    virtual void askAgain() = 0;
};

/// Registers a drill under its `ExerciseType`; the drill must be unregistered before it is destroyed.
void registerDrill(std::string_view exerciseType, Drill& drill);
void unregisterDrill(std::string_view exerciseType);

/// The drill registered under the present `ExerciseType`, nullptr where there is none.
Drill* runningDrill();

/// Begins a drill: sets `ExerciseType` and resets the score.
void beginDrill(std::string_view exerciseType);

/// Leaves the running drill: every `Pause` that waits for it returns, and it is not moved on afterwards. The
/// next stay begins at once: the noun quiz, which nothing begins, pauses in that.
void leaveDrill();

/// Ends the pause of a drill that goes on: every `Pause` that waits for it returns, and what was to follow it
/// does not.
void endPause();

/// The stay in the running drill. There is always one: `beginDrill`, `leaveDrill` and `endPause` end it and
/// begin the next.
Stay drillStay();

} // namespace shell
