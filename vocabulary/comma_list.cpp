#include "vocabulary/comma_list.h"

#include <algorithm>

namespace vocabulary {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEnds = "\r\n";
constexpr char Comma = ',';
constexpr char EscapedComma = '>';
constexpr char Quote = '"';

std::string_view withoutBlanksAtItsEnd(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

// The fields of a text, one after the other. Places count from the beginning of the text, and no letter is
// looked at for every field of its line: a line may be as long as the file.
class Fields {
public:
    explicit Fields(std::string_view text) : text_(text) { findLineEnd(); }

    // A comma promises one more field, be it empty, even at the end of the text.
    bool atEnd() const { return place_ == text_.size() && !isAfterComma_; }

    // True where every line that was read, but for empty ones, has three fields.
    bool areThreeALine() const { return areThreeALine_; }

    // The line that the last field read stands in.
    int line() const { return line_; }

    std::string_view next()
    {
        line_ = nextLine_;
        place_ = std::min(text_.find_first_not_of(Blanks, place_), text_.size());
        const std::string_view line = text_.substr(0, lineEnd_);
        const bool quoted = line.substr(place_).starts_with(Quote);
        const std::size_t begin = place_ + (quoted ? 1 : 0);
        const std::size_t inside = quoted ? closingQuote(begin) : begin;
        const std::size_t end = std::min(line.find(Comma, inside), lineEnd_);
        const std::string_view field = quoted ? line.substr(begin, inside - begin)
                                              : withoutBlanksAtItsEnd(line.substr(begin, end - begin));
        takeSeparator(end);
        countInLine(field);
        return field;
    }

private:
    void findLineEnd() { lineEnd_ = std::min(text_.find_first_of(LineEnds, place_), text_.size()); }

    // The place of the closing quote of a field that begins here. Where no quote can close the field, the
    // first one does, or the end of the line.
    std::size_t closingQuote(std::size_t begin)
    {
        if (closing_ < begin)
            findClosingQuote(begin);
        return closing_ < lineEnd_ ? closing_ : std::min(text_.find(Quote, begin), lineEnd_);
    }

    void findClosingQuote(std::size_t begin)
    {
        const std::string_view line = text_.substr(0, lineEnd_);
        for (closing_ = line.find(Quote, begin); closing_ != line.npos;
             closing_ = line.find(Quote, closing_ + 1)) {
            const std::size_t next = line.find_first_not_of(Blanks, closing_ + 1);
            if (next == line.npos || line[next] == Comma)
                return;
        }
        closing_ = lineEnd_;
    }

    void takeSeparator(std::size_t end)
    {
        const std::string_view rest = text_.substr(end);
        isAfterComma_ = rest.starts_with(Comma);
        place_ = end + std::min<std::size_t>(rest.starts_with("\r\n") ? 2 : 1, rest.size());
        if (rest.empty() || isAfterComma_)
            return;
        ++nextLine_;
        findLineEnd();
    }

    void countInLine(std::string_view field)
    {
        ++inLine_;
        if (isAfterComma_)
            return;
        const bool isEmptyLine = inLine_ == 1 && field.empty();
        areThreeALine_ = areThreeALine_ && (isEmptyLine || inLine_ == WordFields.size());
        inLine_ = 0;
    }

    std::string_view text_;
    std::size_t place_ = 0;
    std::size_t lineEnd_ = 0;
    std::size_t closing_ = 0;
    int line_ = 0;
    int nextLine_ = 1;
    std::size_t inLine_ = 0;
    bool isAfterComma_ = false;
    bool areThreeALine_ = true;
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

bool needsQuotes(std::string_view field)
{
    if (field.empty())
        return false;
    return Blanks.find(field.front()) != std::string_view::npos ||
           Blanks.find(field.back()) != std::string_view::npos || field.front() == Quote;
}

// Fields that begin or end with a blank, or begin with a double quote, stand in double quotes.
std::string lineOf(const WordRecord& record)
{
    const WordRecord written = asWrittenWithCommas(record);
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

CommaList readCommaList(std::string_view text)
{
    Fields fields(text);
    CommaList list;
    WordRecord record;
    while (!fields.atEnd() && list.records.size() <= MostWordsRead) {
        if (readRecord(fields, record))
            list.records.push_back(record);
        else if (!isEmpty(record))
            list.cutOffLine = fields.line();
    }
    list.hasThreeFieldsALine = fields.areThreeALine();
    return list;
}

std::string commaListOf(std::span<const WordRecord> records)
{
    std::string text;
    for (const WordRecord& record : records)
        text += lineOf(record);
    return text;
}

WordRecord asWrittenWithCommas(WordRecord record)
{
    const auto endsLine = [](char letter) { return LineEnds.find(letter) != LineEnds.npos; };
    for (const WordField field : WordFields) {
        std::ranges::replace(record.*field, Comma, EscapedComma);
        std::ranges::replace_if(record.*field, endsLine, ' ');
    }
    return record;
}

} // namespace vocabulary
