#include "progress/review.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <utility>

namespace progress {

void ReviewRound::begin(std::vector<std::int64_t> due)
{
    due_ = std::move(due);
    waiting_.assign(due_.begin(), due_.end());
}

int ReviewRound::missed() const
{
    return static_cast<int>(
        std::ranges::count_if(due_, [this](std::int64_t form) { return missed_.contains(form); }));
}

std::optional<std::int64_t> ReviewRound::asked() const
{
    return waiting_.empty() ? std::nullopt : std::optional(waiting_.front());
}

void ReviewRound::moveOn(bool right)
{
    if (waiting_.empty())
        return;
    if (!right) {
        missed_.insert(waiting_.front());
        waiting_.push_back(waiting_.front());
    }
    waiting_.pop_front();
}

shell::AnswerRecord questionFor(const Form& form)
{
    shell::AnswerRecord question{.exercise = form.name.exercise,
                                 .word = form.word,
                                 .place = form.place,
                                 .asked = form.asked,
                                 .expected = form.expected};
    const bool shown = shell::marksAreShown();
    if (shown == form.marksShown || !marksCanBeHidden(form.name.exercise))
        return question;
    question.asked = shell::withoutMarks(form.asked);
    question.expected = shell::withoutMarks(form.expected);
    question.marksLeftOut = shown;
    return question;
}

shell::AnswerRecord judged(shell::AnswerRecord question, const std::string& written)
{
    question.written = written;
    question.right = (question.marksLeftOut ? shell::withoutMarks(written) : written) == question.expected;
    return question;
}

} // namespace progress
