#pragma once

#include "progress/form.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace progress {

/// The forms that a review still has to ask, by their numbers in the store.
class ReviewRound {
public:
    /// Asks these, in their order. What was missed in a round before this one counts as missed in it too.
    void begin(std::vector<std::int64_t> due);

    /// The form that is asked; none where all are done.
    std::optional<std::int64_t> asked() const;

    /// How many are left, the one asked included.
    int left() const { return static_cast<int>(waiting_.size()); }

    /// How many of them were missed.
    int missed() const;

    /// The form asked was answered: one that was missed comes again as the last. Does nothing where none is
    /// asked.
    void moveOn(bool right);

private:
    std::vector<std::int64_t> due_;
    std::deque<std::int64_t> waiting_;
    std::set<std::int64_t> missed_;
};

/// How a form is asked again: its record, with written and right still open. Where marks of long vowels are
/// shown or hidden now, by `ShowVowelLength`, otherwise than when it was kept, they are left out of what is
/// asked and expected.
shell::AnswerRecord questionFor(const Form& form);

/// Judges an answer letter by letter; marks make no difference where only the question lacks them. Returns
/// the record to tell, with the answer as it was written.
shell::AnswerRecord judged(shell::AnswerRecord question, const std::string& written);

} // namespace progress
