#include "tables/words.h"

#include "nouns/chooser_rows.h"
#include "nouns/noun_edits.h"
#include "shell/language_texts.h"
#include "shell/vowel_marks.h"
#include "tables/noun_table.h"
#include "tables/verb_table.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/quiz_texts.h"
#include "verbs/verb_list.h"

#include <algorithm>

namespace tables {

namespace {

// clang-format off
//                                              English            French                 Italian             German                  Spanish               Latin
constexpr shell::LanguageTexts IrregularVerbs {"Irregular Verbs", "Verbes irréguliers", "Verbi irregolari", "Unregelmäßige Verben", "Verbos irregulares", "Verba Anomala"};
constexpr shell::LanguageTexts Pronouns       {"Pronouns",        "Pronoms",            "Pronomi",          "Pronomen",             "Pronombres",         "Pronomina"};
// clang-format on

WordGroup verbsOf(int verbClass)
{
    const auto row = static_cast<std::size_t>(verbClass - verbs::FirstConjugation);
    WordGroup group{std::string(verbdrills::quizClassNames()[row].currentOrDesigned()), {}};
    const int count = std::min<int>(verbs::verbList.Count[verbClass], verbs::MostVerbs);
    for (int number = 1; number <= count; ++number)
        if (!verbs::verbList.PresentStem[verbClass][number].empty())
            group.words.push_back({WordKind::Verb, verbClass, number});
    return group;
}

WordGroup nounsOf(nouns::NounParadigm paradigm, const shell::LanguageTexts& title)
{
    WordGroup group{std::string(title.currentOrDesigned()), {}};
    for (int number = 1; number <= nouns::listedNounCount(paradigm); ++number)
        if (!writtenStem(paradigm, number).empty())
            group.words.push_back({WordKind::Noun, paradigm, number});
    return group;
}

void appendVerbs(std::vector<WordGroup>& groups)
{
    WordGroup irregular{std::string(IrregularVerbs.currentOrDesigned()), {}};
    for (const verbs::VerbClass verbClass : verbdrills::OfferedClasses) {
        if (verbs::isRegular(verbClass))
            groups.push_back(verbsOf(verbClass));
        else
            irregular.words.push_back({WordKind::Verb, verbClass, 1});
    }
    groups.push_back(std::move(irregular));
}

void appendNouns(std::vector<WordGroup>& groups)
{
    const auto* title = nouns::DeclensionRows.begin();
    for (const nouns::NounParadigm paradigm : nouns::OfferedParadigms)
        groups.push_back(nounsOf(paradigm, *title++));
}

void appendPronouns(std::vector<WordGroup>& groups)
{
    WordGroup group{std::string(Pronouns.currentOrDesigned()), {}};
    for (int row = 0; row < static_cast<int>(nouns::PronounPages.size()); ++row)
        group.words.push_back({WordKind::Pronoun, row, 1});
    groups.push_back(std::move(group));
}

const shell::LanguageTexts& pronounRow(const Word& word)
{
    return nouns::PronounRows.at(static_cast<std::size_t>(word.paradigm));
}

// The note of a fixed noun begins with a blank and has its parentheses.
std::string noteOf(const Word& noun)
{
    const std::string note = nouns::listedNoun(noun.paradigm, noun.number).note;
    return note.empty() || nouns::hasFixedNouns(noun.paradigm) ? note : " (" + note + ")";
}

} // namespace

std::vector<WordGroup> listedWords()
{
    std::vector<WordGroup> groups;
    appendVerbs(groups);
    appendNouns(groups);
    appendPronouns(groups);
    std::erase_if(groups, [](const WordGroup& group) { return group.words.empty(); });
    return groups;
}

Form nameOf(const Word& word)
{
    switch (word.kind) {
    case WordKind::Verb:
        return formOf(infinitiveOf(word.paradigm, word.number));
    case WordKind::Noun:
        return formOf(formsOfNoun(word.paradigm, word.number).front());
    case WordKind::Pronoun:
        break;
    }
    return formOf({.stem = pronounRow(word).latin.value_or(""), .ending = {}});
}

std::optional<Word> wordShownAs(WordKind kind, int paradigm, std::string_view name)
{
    const std::string letters = shell::withoutMarks(name);
    std::optional<Word> alike;
    for (const WordGroup& group : listedWords())
        for (const Word& word : group.words) {
            const std::string own = nameOf(word).text;
            if (word.kind != kind || word.paradigm != paradigm || shell::withoutMarks(own) != letters)
                continue;
            if (own == name)
                return word;
            alike = alike.value_or(word);
        }
    return alike;
}

std::string listedName(const Word& word)
{
    if (word.kind == WordKind::Pronoun)
        return std::string(pronounRow(word).currentOrDesigned());
    const std::string name = asShown(nameOf(word)).text;
    return word.kind == WordKind::Noun ? name + noteOf(word) : name;
}

} // namespace tables
