#pragma once

#include <string>

namespace shell {

/// Sets `AnsweredCount`, `RightCount` and `ScorePercent` to 0.
void resetScore();

/// Counts one more answer, a right one or a wrong one, and works out `ScorePercent`: the right answers in a
/// hundred, rounded to the nearest whole number, halves to the even one. Past 32767 answers the counts stand.
void scoreRightAnswer();
void scoreWrongAnswer();

/// `ScorePercent` as the drills show it, in print form: " 75% " for seventy-five.
std::string scoreText();

/// So many right answers of so many, worked out and shown likewise. The shared counts stay as they are.
std::string scoreText(int right, int answered);

} // namespace shell
