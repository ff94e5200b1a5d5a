#include "vocabulary/comma_list.h"

#include "platform/field_line.h"
#include "platform/field_reader.h"

#include <algorithm>
#include <utility>

namespace vocabulary {

namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr char Comma = ',';
constexpr char EscapedComma = '>';
constexpr char Quote = '"';

// The fields of a text, and how many stand in a line.
class Fields {
public:
    explicit Fields(std::string_view text)
        : reader_(std::string(text), platform::ClosingQuote::BeforeSeparator)
    {
    }

    bool atEnd() const { return reader_.atEnd(); }
    int line() const { return reader_.line(); }

    // True where every line that was read has three fields, but for empty ones and a cut off last one.
    bool areThreeALine() const { return areThreeALine_; }

    bool read(std::string& field)
    {
        if (!reader_.read(field))
            return false;
        ++inLine_;
        if (reader_.endedLine())
            countLine(std::exchange(inLine_, 0), field);
        return true;
    }

private:
    void countLine(std::size_t fields, const std::string& last)
    {
        const bool isEmptyLine = fields == 1 && last.empty();
        if (isEmptyLine)
            return;
        const bool isWhole = fields == WordFields.size();
        const bool mayBeCutOff = follows_ && fields + 1 == WordFields.size();
        areThreeALine_ = areThreeALine_ && !wasCutOff_ && (isWhole || mayBeCutOff);
        wasCutOff_ = !isWhole;
        follows_ = true;
    }

    platform::FieldReader reader_;
    std::size_t inLine_ = 0;
    bool follows_ = false;
    bool wasCutOff_ = false;
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
        if (!fields.read(record.*field))
            return false;
        std::ranges::replace(record.*field, EscapedComma, Comma);
    }
    return true;
}

std::string lineOf(const WordRecord& record)
{
    const WordRecord written = asWrittenWithCommas(record);
    std::string line;
    for (const WordField field : WordFields) {
        const std::string& text = written.*field;
        const std::string quote(platform::needsQuotes(text) ? 1 : 0, Quote);
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
