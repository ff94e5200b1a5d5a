#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace progress {

/// A text of a row in the language of the interface: its parts stand between commas or " / ", and in each
/// part the names of classes, tenses, persons, paradigms, cases, numbers and genders are put into that
/// language, from whichever they were kept in. All else stays. A comma at the end is left out.
std::string inLanguageShown(std::string_view text);

/// The same text with these names in English, whichever language they were kept in. All else stays.
std::string inEnglish(std::string_view text);

/// What a row asked, in the language of the interface. The case of a pronoun stands behind a comma there.
std::string questionInLanguageShown(const std::string& exercise, std::string_view asked);

/// Puts names as they are kept in a place into the order of a grammar: classes, tenses, declensions and
/// pronouns as they are offered, cases in the order that `CaseOrder` says. Names of none come behind, in
/// their order.
void sortAsInGrammar(std::vector<std::string>& names);

} // namespace progress
