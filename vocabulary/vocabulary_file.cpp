#include "vocabulary/vocabulary_file.h"

#include "platform/code_page.h"
#include "platform/file_replacement.h"
#include "platform/text_file.h"
#include "vocabulary/comma_list.h"
#include "vocabulary/separated_list.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace vocabulary {

namespace {

KvtmlReader kvtmlReader;

using Path = std::filesystem::path;

LoadFault faultOf(LoadFault::Kind kind, const Path& path, int line, std::string reason)
{
    return {kind, {path.filename().string(), line, std::move(reason)}};
}

VocabularyFile refused(LoadFault::Kind kind, const Path& path, std::string reason)
{
    return {{}, faultOf(kind, path, 0, std::move(reason))};
}

// Of a file past this length only the beginning would be read.
bool isPastLongestFile(const Path& path)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return !error && size >= platform::LongestFile;
}

VocabularyFile ownFile(const Path& path, CommaList list)
{
    VocabularyFile file{std::move(list.records), {}};
    if (list.cutOffLine > 0)
        file.fault = faultOf(LoadFault::Kind::CutOff, path, list.cutOffLine,
                             "the last word is cut off and was left out");
    return file;
}

bool isKvtml(std::string_view text)
{
    return kvtmlReader && text.starts_with('<') && text.find("<kvtml") != text.npos;
}

VocabularyFile kvtmlFile(const Path& path, std::string_view text)
{
    KvtmlList list = kvtmlReader(text);
    if (list.records.empty())
        return refused(LoadFault::Kind::NoWords, path, "no word in the file has a translation");
    VocabularyFile file{std::move(list.records), {}, true};
    if (list.brokenLine > 0)
        file.fault = faultOf(LoadFault::Kind::CutOff, path, list.brokenLine,
                             "the file breaks off here; the words above were read");
    return file;
}

VocabularyFile fileOf(const Path& path, std::string_view text)
{
    CommaList commaList = readCommaList(text);
    if (commaList.hasThreeFieldsALine)
        return ownFile(path, std::move(commaList));
    if (isKvtml(text))
        return kvtmlFile(path, text);
    for (const char separator : {Tab, Semicolon})
        if (auto records = readSeparatedList(text, separator)) {
            const bool isForeign = !isWrittenWithTabs(path) || tabListOf(*records) != text;
            return {*std::move(records), {}, isForeign};
        }
    return ownFile(path, std::move(commaList));
}

void refuseMoreThanAListHolds(VocabularyFile& file, const Path& path)
{
    const std::size_t words = file.records.size();
    if (words <= MostWords)
        return;
    if (words > MostWordsRead)
        file.records.clear();
    LoadFault fault = faultOf(LoadFault::Kind::TooLong, path, 0,
                              "the file holds more than " + std::to_string(MostWords) + " words");
    fault.words = static_cast<int>(file.records.size());
    if (file.fault)
        fault.loss = std::move(file.fault->fault);
    file.fault = std::move(fault);
}

} // namespace

VocabularyFile readVocabularyFile(const Path& path)
{
    const platform::TextFile text = platform::readTextFile(path);
    if (text.fault)
        return {{}, LoadFault{LoadFault::Kind::Unreadable, *text.fault}};
    if (isPastLongestFile(path))
        return refused(LoadFault::Kind::TooLong, path, "the file is too long for a word list");
    VocabularyFile file = fileOf(path, text.text);
    refuseMoreThanAListHolds(file, path);
    return file;
}

bool isWrittenWithTabs(const Path& path)
{
    return std::ranges::equal(path.extension().string(), TabEnding, {},
                              [](unsigned char letter) { return std::tolower(letter); });
}

void useKvtmlReader(KvtmlReader reader)
{
    kvtmlReader = std::move(reader);
}

std::optional<platform::Fault> writeVocabularyFile(const Path& path, std::span<const WordRecord> records)
{
    const std::string text = isWrittenWithTabs(path) ? tabListOf(records) : commaListOf(records);
    const std::string bytes = platform::encoded(text);
    if (bytes.size() >= platform::LongestFile)
        return platform::Fault{path.filename().string(), 0, "the list is too long to be read again"};
    return platform::replaceFile(path, bytes);
}

WordRecord asWritten(const Path& path, const WordRecord& record)
{
    return isWrittenWithTabs(path) ? asWrittenWithTabs(record) : asWrittenWithCommas(record);
}

} // namespace vocabulary
