#include "vocabulary/vocabulary_file.h"

#include "platform/code_page.h"
#include "platform/file_replacement.h"
#include "platform/text_file.h"

#include <algorithm>
#include <string_view>

namespace vocabulary {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEnds = "\r\n";
constexpr char Comma = ',';
constexpr char EscapedComma = '>';
constexpr char Quote = '"';

bool needsQuotes(std::string_view field)
{
    if (field.empty())
        return false;
    return Blanks.find(field.front()) != std::string_view::npos ||
           Blanks.find(field.back()) != std::string_view::npos || field.front() == Quote;
}

// The place of the closing quote in a line after its opening one. Where no quote can close the field, the
// first one does, or the end of the line.
std::size_t closingQuote(std::string_view line)
{
    for (std::size_t quote = line.find(Quote); quote != line.npos; quote = line.find(Quote, quote + 1)) {
        const std::size_t next = line.find_first_not_of(Blanks, quote + 1);
        if (next == line.npos || line[next] == Comma)
            return quote;
    }
    return std::min(line.find(Quote), line.size());
}

std::string_view withoutBlanksAtItsEnd(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

// The fields of a text, one after the other.
class Fields {
public:
    explicit Fields(std::string_view text) : rest_(text) {}

    // A comma promises one more field, be it empty, even at the end of the text.
    bool atEnd() const { return rest_.empty() && !afterComma_; }

    // The line that the last field read stands in.
    int line() const { return line_; }

    std::string_view next()
    {
        line_ = nextLine_;
        drop(rest_.find_first_not_of(Blanks));
        const std::string_view line = rest_.substr(0, rest_.find_first_of(LineEnds));
        const bool quoted = line.starts_with(Quote);
        const std::size_t inside = quoted ? closingQuote(line.substr(1)) : 0;
        const std::size_t end = std::min(line.find(Comma, quoted ? inside + 1 : 0), line.size());
        drop(end);
        takeSeparator();
        return quoted ? line.substr(1, inside) : withoutBlanksAtItsEnd(line.substr(0, end));
    }

private:
    void drop(std::size_t letters) { rest_.remove_prefix(std::min(letters, rest_.size())); }

    void takeSeparator()
    {
        afterComma_ = rest_.starts_with(Comma);
        if (!rest_.empty() && !afterComma_)
            ++nextLine_;
        drop(rest_.starts_with("\r\n") ? 2 : 1);
    }

    std::string_view rest_;
    int line_ = 0;
    int nextLine_ = 1;
    bool afterComma_ = false;
};

bool isEmpty(const WordRecord& record)
{
    return record == WordRecord{};
}

// Reads one record; false, with the fields that there are, where the text ends before its third.
bool readRecord(Fields& fields, WordRecord& record)
{
    record = {};
    for (const WordField field : WordFields) {
        if (fields.atEnd())
            return false;
        record.*field = fields.next();
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

// The line of a record, with CR LF at its end. Fields that begin or end with a blank, or begin with a double
// quote, stand in double quotes.
std::string lineOf(const WordRecord& record)
{
    const WordRecord written = asWritten(record);
    std::string line;
    for (const WordField field : WordFields) {
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
    const platform::TextFile text = platform::readTextFile(path);
    if (text.fault)
        return {{}, LoadFault{LoadFault::Kind::Unreadable, *text.fault}};
    if (isPastLongestFile(path))
        return tooLong(path, "the file is too long for a word list");
    Fields fields(text.text);
    VocabularyFile file;
    WordRecord record;
    while (!fields.atEnd()) {
        if (readRecord(fields, record))
            file.records.push_back(record);
        else if (!isEmpty(record))
            file.fault = faultOf(LoadFault::Kind::CutOff, path, fields.line(),
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

WordRecord asWritten(WordRecord record)
{
    const auto endsLine = [](char letter) { return LineEnds.find(letter) != LineEnds.npos; };
    for (const WordField field : WordFields) {
        std::ranges::replace(record.*field, Comma, EscapedComma);
        std::ranges::replace_if(record.*field, endsLine, ' ');
    }
    return record;
}

} // namespace vocabulary
