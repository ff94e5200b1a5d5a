#include "nouns/noun_list_file.h"

#include "platform/field_line.h"
#include "platform/field_reader.h"
#include "platform/text_file.h"

#include <algorithm>
#include <array>
#include <optional>

namespace nouns {

namespace {

using platform::FieldReader;

struct Section {
    int headingFields;
    NounParadigm paradigm;
};

constexpr std::array<Section, 8> Sections = {{
    {1, FirstDeclension},
    {2, SecondDeclensionUs},
    {2, ThirdDeclension},
    {2, SecondDeclensionEr},
    {0, SecondDeclensionNeuter}, // sic
    {2, ThirdDeclensionNeuter},
    {2, FourthDeclensionNeuter},
    {2, FifthDeclension},
}};

std::optional<NounRecord> readNoun(FieldReader& reader, NounParadigm paradigm)
{
    NounRecord noun;
    if (!reader.read(noun.note) || !reader.read(noun.stem))
        return {};
    if (paradigm == ThirdDeclension && !reader.read(noun.obliqueStem))
        return {};
    for (std::string& meaning : noun.meanings)
        if (!reader.read(meaning))
            return {};
    return noun;
}

// Reads up to `count` nouns and returns how many there were before the first fault.
int readNouns(FieldReader& reader, NounParadigm paradigm, int count)
{
    const int fitting = std::min(count, mostNounsOf(paradigm));
    for (int number = 1; number <= fitting; ++number) {
        const auto noun = readNoun(reader, paradigm);
        if (!noun)
            return number - 1;
        storeNoun(paradigm, number, *noun);
    }
    return fitting;
}

bool readSection(FieldReader& reader, const Section& section)
{
    std::int16_t count = 0;
    if (!reader.skip(section.headingFields) || !reader.read(count) || count < 0)
        return false;
    const int read = readNouns(reader, section.paradigm, count);
    nounList.NounCount[section.paradigm] = static_cast<std::int16_t>(read);
    return read == count;
}

} // namespace

bool readNounList(const std::filesystem::path& path)
{
    platform::TextFile file = platform::readTextFile(path);
    if (file.fault)
        return false;
    FieldReader reader(std::move(file.text));
    return std::ranges::all_of(Sections,
                               [&](const Section& section) { return readSection(reader, section); });
}

std::string lineOfNoun(int paradigm, const NounRecord& noun)
{
    const auto& [english, german, french, spanish] = noun.meanings;
    if (paradigm == ThirdDeclension)
        return platform::lineOfFields(
            {noun.note, noun.stem, noun.obliqueStem, english, german, french, spanish});
    return platform::lineOfFields({noun.note, noun.stem, english, german, french, spanish});
}

} // namespace nouns
