#pragma once

#include "nouns/noun_list.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace nouns {

inline constexpr std::string_view NounListFileName = "nouns.cfg";

/// Reads the file into `nounList`, in eight sections: first declension; second in -us; third masculine and
/// feminine; second in -er; second neuter; third neuter; fourth neuter; fifth. A section is a heading, the
/// count of its nouns, and so many nouns of six fields: note, stem, and four meanings. Those of the third
/// declension, masculine and feminine, have a seventh field, the oblique stem, after the stem. The second
/// neuter has no heading. Stems lose their marks where `ShowVowelLength` is not true.
///
/// Returns false at the first fault: no file, a field that is missing, a count that is not a number or is
/// negative, a noun more than the list can hold. What was read before stays, and the section with the fault
/// counts the nouns that were read of it.
bool readNounList(const std::filesystem::path& path);

/// A noun of a paradigm as a line of the file, without the line's end.
std::string lineOfNoun(int paradigm, const NounRecord& noun);

} // namespace nouns
