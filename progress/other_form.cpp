#include "progress/other_form.h"

#include "nouns/case_names.h"
#include "nouns/chooser_rows.h"
#include "nouns/noun_forms.h"
#include "nouns/paradigm_names.h"
#include "nouns/pronoun_columns.h"
#include "shell/settings.h"
#include "shell/vowel_marks.h"
#include "tables/word_forms.h"
#include "verbdrills/other_ending.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/tense_names.h"
#include "verbs/paradigm.h"

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

bool isForm(const shell::FormParts& form, const AnswerRecord& question, const std::string& written)
{
    const auto asAsked = [&](const std::string& text) {
        return question.marksLeftOut ? shell::withoutMarks(text) : text;
    };
    return form.exist() && asAsked(tables::asShown(tables::formOf(form)).text) == asAsked(written);
}

std::optional<LanguageTexts> otherEnding(const AnswerRecord& question, const std::string& written)
{
    const auto place = partsOfPlace(question.place);
    const auto classRow = rowOf(place[0], verbdrills::quizClassNames(), &LanguageTexts::english);
    const auto tense = rowOf(place[1], verbdrills::NamesOfTenses, &LanguageTexts::english);
    const auto person = rowOf(place[2], verbdrills::NamesOfPersons, &LanguageTexts::english);
    if (!classRow || !tense || !person)
        return {};
    const auto verb = tables::wordShownAs(WordKind::Verb, *classRow + 1, question.word);
    if (!verb)
        return {};
    const auto forms = tables::formsOf(*verb);
    const auto ofTense =
        std::span(forms).subspan(static_cast<std::size_t>(*tense * verbs::PersonCount), verbs::PersonCount);
    verbdrills::Persons answered{};
    std::ranges::transform(ofTense, answered.begin(),
                           [&](const shell::FormParts& form) { return isForm(form, question, written); });
    return verbdrills::otherEndingOf(*person + verbs::FirstSingular, answered);
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

std::optional<std::size_t> personNamed(std::string_view name)
{
    for (std::size_t person = 0; person < nouns::ColumnsOfGroup; ++person)
        if (name == nouns::SingularPersons.at(person) || name == nouns::PluralPersons.at(person))
            return person;
    return {};
}

// Of the personal pronouns, which are three words, only those of the person that is asked.
std::span<const shell::FormParts> formsOfWordAsked(std::span<const shell::FormParts> forms, const Word& word,
                                                   const AnswerRecord& question)
{
    if (word.kind != WordKind::Pronoun || nouns::columnsAreOneWord(word.paradigm))
        return forms;
    const auto person = personNamed(partsOfPlace(question.place)[2]);
    if (!person)
        return {};
    return forms.subspan(*person * nouns::CaseCount, nouns::CaseCount);
}

} // namespace

std::optional<LanguageTexts> otherFormOf(const AnswerRecord& question, const std::string& written)
{
    if (question.exercise == shell::exercise::Vcabtester)
        return {};
    if (question.exercise == shell::exercise::Conjugation)
        return otherEnding(question, written);
    const auto word = declinedWord(question);
    if (!word)
        return {};
    const auto forms = tables::formsOf(*word);
    const bool isOther =
        std::ranges::any_of(formsOfWordAsked(forms, *word, question),
                            [&](const shell::FormParts& form) { return isForm(form, question, written); });
    if (isOther)
        return nouns::OtherForm;
    const bool isNeuter = word->kind == WordKind::Noun && word->paradigm == nouns::ThirdDeclensionNeuter;
    return isNeuter && nouns::hasStemBeforeEnding(written, question.word, question.expected)
               ? std::optional(nouns::EndingAlone)
               : std::nullopt;
}

} // namespace progress
