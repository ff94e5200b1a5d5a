#include "progress/grammar_names.h"

#include "nouns/case_names.h"
#include "nouns/case_order.h"
#include "nouns/chooser_rows.h"
#include "nouns/paradigm_names.h"
#include "shell/settings.h"
#include "verbdrills/conjugation_choice.h"
#include "verbdrills/quiz_texts.h"
#include "verbdrills/tense_names.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace progress {

using shell::LanguageTexts;

namespace {

constexpr std::string_view Comma = ", ";
constexpr std::array<std::string_view, 2> Separators = {Comma, " / "};

// The declension drill's, after the name of a case.
constexpr LanguageTexts SingularAfterCase{"Singular", "singulier", {}, "Einzahl", "Singular", "singularis"};

constexpr std::array Numbers = {
    SingularAfterCase, nouns::PluralOfCase, nouns::SingularOfCase, nouns::SingularTexts, nouns::PluralTexts,
};

bool names(const LanguageTexts& texts, std::string_view name)
{
    const auto all = {texts.english, texts.french, texts.italian, texts.german, texts.spanish, texts.latin};
    return std::ranges::find(all, std::optional(name)) != all.end();
}

const LanguageTexts* findIn(std::span<const LanguageTexts> table, std::string_view name)
{
    const auto found = std::ranges::find_if(table, [&](const auto& texts) { return names(texts, name); });
    return found == table.end() ? nullptr : &*found;
}

const LanguageTexts* findName(std::string_view name)
{
    const std::initializer_list<std::span<const LanguageTexts>> tables = {verbdrills::quizClassNames(),
                                                                          verbdrills::NamesOfTenses,
                                                                          verbdrills::NamesOfPersons,
                                                                          nouns::CaseTexts,
                                                                          Numbers,
                                                                          nouns::GenderTexts};
    for (const auto table : tables)
        if (const LanguageTexts* const texts = findIn(table, name))
            return texts;
    for (const nouns::ParadigmName& paradigm : nouns::ParadigmNames)
        if (names(paradigm.texts, name))
            return &paradigm.texts;
    return nullptr;
}

using Naming = std::string_view (*)(const LanguageTexts&);

std::string_view nameShown(const LanguageTexts& texts)
{
    return texts.currentOrDesigned();
}

std::string_view englishName(const LanguageTexts& texts)
{
    return *texts.english;
}

// The words of a part from the left, of each the longest name that begins with it: "Genitive Singular".
std::string renamed(std::string_view part, Naming naming)
{
    if (part.empty())
        return {};
    for (std::size_t end = part.size(); end != 0 && end != std::string_view::npos;
         end = part.rfind(' ', end - 1)) {
        const LanguageTexts* const texts = findName(part.substr(0, end));
        if (texts == nullptr)
            continue;
        const std::string name(naming(*texts));
        return end == part.size() ? name : name + " " + renamed(part.substr(end + 1), naming);
    }
    const std::size_t blank = part.find(' ');
    if (blank == std::string_view::npos)
        return std::string(part);
    return std::string(part.substr(0, blank + 1)) + renamed(part.substr(blank + 1), naming);
}

struct Cut {
    std::size_t at = std::string_view::npos;
    std::size_t length = 0;
};

Cut firstSeparator(std::string_view text)
{
    Cut cut;
    for (const std::string_view separator : Separators)
        if (const std::size_t at = text.find(separator); at < cut.at)
            cut = {at, separator.size()};
    return cut;
}

std::vector<std::string> casesInOrder(const LanguageTexts& number)
{
    std::vector<std::string> cases;
    for (const int inCase : nouns::casesInOrder())
        cases.push_back(std::string(nouns::CaseNames.at(static_cast<std::size_t>(inCase)))
                            .append(" ")
                            .append(*number.english));
    return cases;
}

std::vector<std::string> namesInOrder()
{
    std::vector<std::string> ordered;
    for (const int verbClass : verbdrills::OfferedClasses)
        ordered.emplace_back(*verbdrills::quizClassNames()[static_cast<std::size_t>(verbClass - 1)].english);
    for (const LanguageTexts& tense : verbdrills::NamesOfTenses)
        ordered.emplace_back(*tense.english);
    for (const int paradigm : nouns::OfferedParadigms)
        ordered.emplace_back(*nouns::ParadigmNames.at(static_cast<std::size_t>(paradigm - 1)).texts.english);
    for (const LanguageTexts& group : nouns::PronounRows)
        ordered.emplace_back(*group.latin);
    for (const LanguageTexts& number : {nouns::SingularTexts, nouns::PluralTexts})
        std::ranges::copy(casesInOrder(number), std::back_inserter(ordered));
    return ordered;
}

} // namespace

std::string inLanguageShown(std::string_view text)
{
    std::string shown;
    while (true) {
        const Cut cut = firstSeparator(text);
        shown += renamed(text.substr(0, cut.at), nameShown);
        if (cut.at == std::string_view::npos)
            return shown;
        text.remove_prefix(cut.at + cut.length);
        if (text.empty())
            return shown;
        shown += Comma;
    }
}

std::string inEnglish(std::string_view text)
{
    const Cut cut = firstSeparator(text);
    const std::string part = renamed(text.substr(0, cut.at), englishName);
    if (cut.at == std::string_view::npos)
        return part;
    return part + std::string(text.substr(cut.at, cut.length)) + inEnglish(text.substr(cut.at + cut.length));
}

std::string questionInLanguageShown(const std::string& exercise, std::string_view asked)
{
    const std::size_t blank = asked.rfind(' ');
    if (exercise != shell::exercise::Pronouns || blank == std::string_view::npos)
        return inLanguageShown(asked);
    return inLanguageShown(std::string(asked.substr(0, blank)).append(Comma).append(asked.substr(blank + 1)));
}

void sortAsInGrammar(std::vector<std::string>& names)
{
    const std::vector<std::string> ordered = namesInOrder();
    std::ranges::stable_sort(names, {}, [&ordered](const std::string& name) {
        return std::ranges::find(ordered, name) - ordered.begin();
    });
}

} // namespace progress
