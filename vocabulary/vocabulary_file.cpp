#include "vocabulary/vocabulary_file.h"

#include "platform/code_page.h"
#include "platform/field_reader.h"
#include "platform/file_replacement.h"
#include "platform/text_file.h"

#include <algorithm>
#include <array>

namespace vocabulary {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEnds = "\r\n";
constexpr char Comma = ',';
constexpr char EscapedComma = '>';
constexpr char Quote = '"';

using Field = std::string WordRecord::*;
constexpr std::array<Field, 3> Fields = {&WordRecord::word, &WordRecord::translation, &WordRecord::hint};

bool needsQuotes(std::string_view field)
{
    if (field.empty())
        return false;
    return Blanks.find(field.front()) != std::string_view::npos ||
           Blanks.find(field.back()) != std::string_view::npos || field.front() == Quote;
}

bool isEmpty(const WordRecord& record)
{
    return record == WordRecord{};
}

// Reads one record; false, with the fields that there are, where the text ends before its third.
bool readRecord(platform::FieldReader& reader, WordRecord& record)
{
    record = {};
    for (const Field field : Fields) {
        if (!reader.read(record.*field))
            return false;
        std::ranges::replace(record.*field, EscapedComma, Comma);
    }
    return true;
}

LoadFault faultOf(LoadFault::Kind kind, const std::filesystem::path& path, int line, std::string reason)
{
    return {kind, {path.filename().string(), line, std::move(reason)}};
}

VocabularyFile tooLong(const std::filesystem::path& path, std::string reason)
{
    return {{}, faultOf(LoadFault::Kind::TooLong, path, 0, std::move(reason))};
}

// Of a file past this length only the beginning would be read.
bool isPastLongestFile(const std::filesystem::path& path)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return !error && size >= platform::LongestFile;
}

// The line of a record without commas, with CR LF at its end. Fields that begin or end with a blank, or begin
// with a double quote, stand in double quotes.
std::string lineOf(const WordRecord& record)
{
    const WordRecord written = withoutCommas(record);
    std::string line;
    for (const Field field : Fields) {
        const std::string& text = written.*field;
        const std::string quote(needsQuotes(text) ? 1 : 0, Quote);
        line += quote + text + quote + Comma;
    }
    line.back() = '\r';
    return line + '\n';
}

} // namespace

VocabularyFile readVocabularyFile(const std::filesystem::path& path)
{
    platform::TextFile text = platform::readTextFile(path);
    if (text.fault)
        return {{}, LoadFault{LoadFault::Kind::Unreadable, *text.fault}};
    if (isPastLongestFile(path))
        return tooLong(path, "the file is too long for a word list");
    platform::FieldReader reader(std::move(text.text));
    VocabularyFile file;
    WordRecord record;
    while (!reader.atEnd()) {
        if (readRecord(reader, record))
            file.records.push_back(record);
        else if (!isEmpty(record))
            file.fault = faultOf(LoadFault::Kind::CutOff, path, reader.line(),
                                 "the last word is cut off and was left out");
        if (file.records.size() > MostWords)
            return tooLong(path, "the file holds more than 300 words");
    }
    return file;
}

std::optional<platform::Fault> writeVocabularyFile(const std::filesystem::path& path,
                                                   std::span<const WordRecord> records)
{
    std::string text;
    for (const WordRecord& record : records)
        text += lineOf(record);
    const std::string bytes = platform::encoded(text);
    if (bytes.size() >= platform::LongestFile)
        return platform::Fault{path.filename().string(), 0, "the list is too long to be read again"};
    return platform::replaceFile(path, bytes);
}

std::string storableText(std::string_view text)
{
    std::string stored(text);
    std::ranges::replace(stored, EscapedComma, Comma);
    std::ranges::replace_if(
        stored, [](char letter) { return LineEnds.find(letter) != std::string_view::npos; }, ' ');
    if (needsQuotes(stored))
        std::ranges::replace(stored, Quote, '\'');
    return stored;
}

WordRecord withoutCommas(WordRecord record)
{
    for (const Field field : Fields)
        std::ranges::replace(record.*field, Comma, EscapedComma);
    return record;
}

} // namespace vocabulary
