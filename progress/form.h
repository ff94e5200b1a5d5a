#pragma once

#include "progress/leitner.h"
#include "progress/row.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace progress {

/// The last so many answers of a form say how well it is known.
inline constexpr std::size_t LastAnswers = 10;

/// Of the wrong answers to a form so many are remembered, none of them twice.
inline constexpr std::size_t WrongAnswersRemembered = 3;

/// What makes a form the same one, from whichever exercise its answers come.
struct FormName {
    std::string exercise;
    std::string word;
    std::string place;

    auto operator<=>(const FormName&) const = default;
};

/// The name of the form that was asked. Where marks of long vowels can be shown or hidden, they do not count.
FormName nameOf(const shell::AnswerRecord& answer);

/// How many were answered, and how many of them right.
struct Share {
    int answered = 0;
    int right = 0;

    bool operator==(const Share&) const = default;
};

/// The share as a cell shows it, rounded to the nearest: "75 %". Empty where nothing was answered.
std::string textOf(const Share& share);

/// One form, as its answers have left it.
struct Form {
    /// Its number in the store; 0 for one that is not there yet.
    std::int64_t number = 0;

    FormName name;

    /// As it was asked last; with the marks of long vowels where it ever was asked with them.
    std::string word;
    std::string place;
    std::string asked;
    std::string expected;
    bool marksShown = false;

    /// Its box, 1 to 6, and when it is due; none for the forms of a quiz, which do not come up again.
    int box = FirstBox;
    std::optional<Day> due;

    /// Its last answers, ten at the most, in their order: "1" for a right one, "0" for a wrong one.
    std::string lastAnswers;

    /// What was written instead, the latest first.
    std::vector<std::string> wrongAnswers;

    /// The drill in which it was asked last.
    std::int64_t drill = 0;
};

/// The form after one more answer. A right one that only corrects a miss just made in the same drill moves it
/// to no other box.
Form after(Form form, const Row& row);

/// The share of right ones among its last answers.
Share shareOf(const Form& form);

/// The worst first: by the share of right answers, then by the box.
void sortWorstFirst(std::vector<Form>& forms);

/// Whether the marks of an exercise go with the option to show them. Those of a word list stay as written.
bool marksCanBeHidden(const std::string& exercise);

} // namespace progress
