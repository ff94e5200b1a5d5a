#include "progress/other_form.h"

#include "nouns/case_names.h"
#include "nouns/chooser_rows.h"
#include "nouns/paradigm_names.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tables/word_forms.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/tense_names.h"

#include <algorithm>
#include <span>

namespace progress {

using shell::AnswerRecord;
using shell::LanguageTexts;
using shell::partsOfPlace;
using tables::Word;
using tables::WordKind;

namespace {

std::optional<int> rowOf(std::string_view name, std::span<const LanguageTexts> table,
                         std::optional<std::string_view> LanguageTexts::*language)
{
    const auto found = std::ranges::find(table, std::optional(name), language);
    return found == table.end() ? std::nullopt : std::optional(static_cast<int>(found - table.begin()));
}

bool anyIs(std::span<const shell::FormParts> forms, const AnswerRecord& question, const std::string& written)
{
    const auto asAsked = [&](const std::string& text) {
        return question.marksLeftOut ? shell::withoutMarks(text) : text;
    };
    return std::ranges::any_of(forms, [&](const shell::FormParts& form) {
        return form.exist() && asAsked(tables::asShown(tables::formOf(form)).text) == asAsked(written);
    });
}

bool isAnotherPerson(const AnswerRecord& question, const std::string& written)
{
    const auto place = partsOfPlace(question.place);
    const auto classRow = rowOf(place[0], verbdrills::quizClassNames(), &LanguageTexts::english);
    const auto tense = rowOf(place[1], verbdrills::NamesOfTenses, &LanguageTexts::english);
    if (!classRow || !tense)
        return false;
    const auto verb = tables::wordShownAs(WordKind::Verb, *classRow + 1, question.word);
    if (!verb)
        return false;
    const auto forms = tables::formsOf(*verb);
    return anyIs(
        std::span(forms).subspan(static_cast<std::size_t>(*tense * verbs::PersonCount), verbs::PersonCount),
        question, written);
}

std::optional<Word> declinedWord(const AnswerRecord& question)
{
    const auto name = partsOfPlace(question.place)[0];
    if (const auto group = rowOf(name, nouns::PronounRows, &LanguageTexts::latin))
        return Word{WordKind::Pronoun, *group, 1};
    for (const nouns::ParadigmName& paradigm : nouns::ParadigmNames)
        if (paradigm.texts.english == name)
            return tables::wordShownAs(WordKind::Noun, paradigm.paradigm, question.word);
    return {};
}

} // namespace

std::optional<LanguageTexts> otherFormOf(const AnswerRecord& question, const std::string& written)
{
    if (question.exercise == shell::exercise::Vcabtester)
        return {};
    if (question.exercise == shell::exercise::Conjugation)
        return isAnotherPerson(question, written) ? std::optional(verbdrills::OtherPerson) : std::nullopt;
    const auto word = declinedWord(question);
    if (!word)
        return {};
    return anyIs(tables::formsOf(*word), question, written) ? std::optional(nouns::OtherForm) : std::nullopt;
}

} // namespace progress
