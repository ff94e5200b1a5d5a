#pragma once

#include "verbs/verb_list.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace verbs {

inline constexpr std::string_view VerbListFileName = "verbs.cfg";

/// Both readers read the file into `verbList`, in five sections: first, second and third conjugation, the -io
/// verbs of the third, fourth. A section is a heading, the count of its verbs, and so many verbs of seven
/// fields: present stem, supine stem, perfect stem, and four translations. Stems lose their marks where
/// `ShowVowelLength` is not true.
///
/// They return false at the first fault: no file, a field that is missing, a count that is not a number or is
/// negative, a sixteenth verb. What was read before stays; the section with the fault counts the verbs that
/// were read of it, or those that it had before where these are more.

/// Reads the list at start.
bool readVerbList(const std::filesystem::path& path);

/// Reads the list again after `ShowVowelLength` was switched. Here the count of the -io verbs becomes that of
/// the fourth conjugation and the other way round.
bool readVerbListAgain(const std::filesystem::path& path);

/// A verb as a line of the file, without the line's end.
std::string lineOfVerb(const VerbRecord& verb);

} // namespace verbs
