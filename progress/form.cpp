#include "progress/form.h"

#include "shell/settings.h"
#include "shell/vowel_marks.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace progress {

namespace {

constexpr char Right = '1';
constexpr char Wrong = '0';

bool comesUpAgain(const std::string& exercise)
{
    return exercise != shell::exercise::Quiz && exercise != shell::exercise::NounQuiz;
}

bool onlyCorrects(const Form& form, const Row& row)
{
    return row.answer.right && row.drill != 0 && row.drill == form.drill && form.lastAnswers.ends_with(Wrong);
}

void rememberAnswer(Form& form, bool right)
{
    form.lastAnswers += right ? Right : Wrong;
    if (form.lastAnswers.size() > LastAnswers)
        form.lastAnswers.erase(0, form.lastAnswers.size() - LastAnswers);
}

void rememberWrongAnswer(Form& form, const std::string& written)
{
    std::erase(form.wrongAnswers, written);
    form.wrongAnswers.push_back(written);
    std::ranges::rotate(form.wrongAnswers, form.wrongAnswers.end() - 1);
    if (form.wrongAnswers.size() > WrongAnswersRemembered)
        form.wrongAnswers.resize(WrongAnswersRemembered);
}

// Texts with marks are kept where they are the same but for these: marks can be hidden, but not found again.
void rememberQuestion(Form& form, const Row& row)
{
    const bool same =
        form.marksShown && !row.marksShown && shell::withoutMarks(form.expected) == row.answer.expected;
    if (same)
        return;
    form.word = row.answer.word;
    form.place = row.answer.place;
    form.asked = row.answer.asked;
    form.expected = row.answer.expected;
    form.marksShown = row.marksShown;
}

} // namespace

FormName nameOf(const shell::AnswerRecord& answer)
{
    if (!marksCanBeHidden(answer.exercise))
        return {answer.exercise, answer.word, answer.place};
    return {answer.exercise, shell::withoutMarks(answer.word), shell::withoutMarks(answer.place)};
}

std::string textOf(const Share& share)
{
    if (share.answered == 0)
        return {};
    return std::to_string((200 * share.right + share.answered) / (2 * share.answered)) + " %";
}

Form after(Form form, const Row& row)
{
    if (!onlyCorrects(form, row))
        form.box = boxAfter(form.box, row.answer.right);
    form.name = nameOf(row.answer);
    rememberQuestion(form, row);
    form.drill = row.drill;
    if (comesUpAgain(form.name.exercise))
        form.due = dueAfter(form.box, platform::localDay(row.moment));
    rememberAnswer(form, row.answer.right);
    if (!row.answer.right)
        rememberWrongAnswer(form, row.answer.written);
    return form;
}

Share shareOf(const Form& form)
{
    return {.answered = static_cast<int>(form.lastAnswers.size()),
            .right = static_cast<int>(std::ranges::count(form.lastAnswers, Right))};
}

void sortWorstFirst(std::vector<Form>& forms)
{
    std::ranges::stable_sort(forms, {}, [](const Form& form) {
        const Share share = shareOf(form);
        const double known = share.answered == 0 ? 1 : double(share.right) / share.answered;
        return std::tuple(known, form.box);
    });
}

bool marksCanBeHidden(const std::string& exercise)
{
    return exercise != shell::exercise::Vcabtester;
}

} // namespace progress
