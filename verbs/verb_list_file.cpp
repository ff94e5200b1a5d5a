#include "verbs/verb_list_file.h"

#include "platform/field_line.h"
#include "platform/field_reader.h"
#include "platform/text_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace verbs {

namespace {

using platform::FieldReader;

struct Section {
    int headingFields;
    VerbClass verbs;
    VerbClass count;
};

// clang-format off
constexpr std::array<Section, 5> SectionsAtStart = {{
    {1, FirstConjugation,   FirstConjugation},
    {2, SecondConjugation,  SecondConjugation},
    {2, ThirdConjugation,   ThirdConjugation},
    {2, ThirdIoConjugation, ThirdIoConjugation},
    {2, FourthConjugation,  FourthConjugation},
}};

constexpr std::array<Section, 5> SectionsAfterSwitch = {{
    {1, FirstConjugation,   FirstConjugation},
    {2, SecondConjugation,  SecondConjugation},
    {2, ThirdConjugation,   ThirdConjugation},
    {2, ThirdIoConjugation, FourthConjugation},  // sic
    {2, FourthConjugation,  ThirdIoConjugation}, // sic
}};
// clang-format on

std::optional<VerbRecord> readVerb(FieldReader& reader)
{
    VerbRecord verb;
    if (!reader.read(verb.presentStem) || !reader.read(verb.supineStem) || !reader.read(verb.perfectStem))
        return {};
    for (std::string& translation : verb.translations)
        if (!reader.read(translation))
            return {};
    return verb;
}

// Reads up to `count` verbs and returns how many there were before the first fault.
int readVerbs(FieldReader& reader, VerbClass verbClass, int count)
{
    for (int number = 1; number <= std::min(count, MostVerbs); ++number) {
        const auto verb = readVerb(reader);
        if (!verb)
            return number - 1;
        storeVerb(verbClass, number, *verb);
    }
    return std::min(count, MostVerbs);
}

bool readSection(FieldReader& reader, const Section& section)
{
    std::int16_t count = 0;
    if (!reader.skip(section.headingFields) || !reader.read(count) || count < 0)
        return false;
    const auto read = static_cast<std::int16_t>(readVerbs(reader, section.verbs, count));
    std::int16_t& kept = verbList.Count[section.count];
    kept = read == count ? count : std::max(kept, read);
    return read == count;
}

bool readSections(const std::filesystem::path& path, std::span<const Section> sections)
{
    platform::TextFile file = platform::readTextFile(path);
    if (file.fault)
        return false;
    FieldReader reader(std::move(file.text));
    return std::ranges::all_of(sections,
                               [&](const Section& section) { return readSection(reader, section); });
}

} // namespace

bool readVerbList(const std::filesystem::path& path)
{
    return readSections(path, SectionsAtStart);
}

bool readVerbListAgain(const std::filesystem::path& path)
{
    return readSections(path, SectionsAfterSwitch);
}

std::string lineOfVerb(const VerbRecord& verb)
{
    const auto& [baseForm, past, pastParticiple, presentParticiple] = verb.translations;
    return platform::lineOfFields({verb.presentStem, verb.supineStem, verb.perfectStem, baseForm, past,
                                   pastParticiple, presentParticiple});
}

} // namespace verbs
