#include "vocabulary/separated_list.h"

#include "platform/field_line.h"
#include "vocabulary/comma_list.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vocabulary {

namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view TabsAndLineEnds = "\t\r\n";
constexpr char Comma = ',';
constexpr char Comment = '#';
constexpr char Markup = '<';
constexpr char Quote = '"';

// Flash-card programs know this comment.
constexpr std::string_view TabComment = "#separator:tab\r\n";

bool isOneOf(std::string_view letters, char letter)
{
    return letters.find(letter) != letters.npos;
}

// What stands between the quotes of a field.
std::string unquoted(std::string_view text)
{
    std::string field;
    for (std::size_t place = 0; place < text.size(); ++place) {
        field += isOneOf(LineEnds, text[place]) ? ' ' : text[place];
        const std::string_view pair = text.substr(place, 2);
        if (pair == "\r\n" || pair == "\"\"")
            ++place;
    }
    return field;
}

// The rows of a text, one after the other.
class Rows {
public:
    Rows(std::string_view text, char separator)
        : text_(text), separator_(separator),
          blanks_(separator == Tab ? " " : " \t"), fieldEnds_{separator, '\r', '\n'}
    {
    }

    bool atEnd() const { return place_ >= text_.size(); }

    bool isComment() const
    {
        const std::size_t begin = std::min(text_.find_first_not_of(blanks_, place_), text_.size());
        return text_.substr(begin).starts_with(Comment);
    }

    void passLine()
    {
        place_ = std::min(text_.find_first_of(LineEnds, place_), text_.size());
        takeLineEnd();
    }

    // Reads one row, and returns how many fields it has.
    int next(WordRecord& record)
    {
        record = {};
        rowBegin_ = place_;
        int fields = 0;
        do {
            std::string text = nextField();
            if (fields < static_cast<int>(WordFields.size()))
                record.*WordFields.at(static_cast<std::size_t>(fields)) = std::move(text);
            ++fields;
        } while (tookSeparator());
        takeLineEnd();
        return fields;
    }

    // True where a field that was read has a comma outside quotes.
    bool hadComma() const { return hadComma_; }

    // True where the last row read holds nothing but separators and blanks: spreadsheets write such rows.
    bool wasEmpty() const
    {
        const std::string_view row = text_.substr(rowBegin_, place_ - rowBegin_);
        return std::ranges::all_of(
            row, [this](char letter) { return isOneOf(blanks_, letter) || isOneOf(fieldEnds_, letter); });
    }

private:
    std::string nextField()
    {
        passBlanks();
        if (auto quoted = quotedField())
            return *std::move(quoted);
        const std::size_t end = std::min(text_.find_first_of(fieldEnds_, place_), text_.size());
        const std::string_view field = text_.substr(place_, end - place_);
        place_ = end;
        hadComma_ = hadComma_ || isOneOf(field, Comma);
        return std::string(field.substr(0, field.find_last_not_of(blanks_) + 1));
    }

    // A field in quotes; where something else follows the closing one, the quotes are part of a plain field.
    std::optional<std::string> quotedField()
    {
        if (!text_.substr(place_).starts_with(Quote))
            return {};
        const std::size_t closing = closingQuote(place_ + 1);
        if (closing == text_.npos)
            return {};
        const std::size_t next = std::min(text_.find_first_not_of(blanks_, closing + 1), text_.size());
        if (next < text_.size() && !isOneOf(fieldEnds_, text_[next]))
            return {};
        const std::size_t begin = std::exchange(place_, next) + 1;
        return unquoted(text_.substr(begin, closing - begin));
    }

    // The first double quote from here that is not doubled.
    std::size_t closingQuote(std::size_t place) const
    {
        for (place = text_.find(Quote, place); place != text_.npos; place = text_.find(Quote, place + 2))
            if (!text_.substr(place + 1).starts_with(Quote))
                break;
        return place;
    }

    void passBlanks() { place_ = std::min(text_.find_first_not_of(blanks_, place_), text_.size()); }

    bool tookSeparator()
    {
        const bool taken = text_.substr(place_).starts_with(separator_);
        place_ += taken ? 1 : 0;
        return taken;
    }

    void takeLineEnd()
    {
        const std::string_view rest = text_.substr(place_);
        place_ += std::min<std::size_t>(rest.starts_with("\r\n") ? 2 : 1, rest.size());
    }

    std::string_view text_;
    char separator_;
    std::string_view blanks_;
    std::string fieldEnds_;
    std::size_t place_ = 0;
    std::size_t rowBegin_ = 0;
    bool hadComma_ = false;
};

std::string inQuotes(std::string_view field)
{
    std::string text{Quote};
    for (const char letter : field)
        text.append(letter == Quote ? 2 : 1, letter);
    return text + Quote;
}

std::string lineOf(const WordRecord& record)
{
    const WordRecord written = asWrittenWithTabs(record);
    const bool looksOtherwise =
        written.word.starts_with(Comment) || written.word.starts_with(Markup) || written == WordRecord{};
    std::string line;
    for (const WordField field : WordFields) {
        const std::string& text = written.*field;
        const bool isQuoted = platform::needsQuotes(text) || (field == &WordRecord::word && looksOtherwise);
        line += (isQuoted ? inQuotes(text) : text) + Tab;
    }
    line.back() = '\r';
    return line + '\n';
}

} // namespace

std::optional<std::vector<WordRecord>> readSeparatedList(std::string_view text, char separator)
{
    Rows rows(text, separator);
    std::vector<WordRecord> records;
    WordRecord record;
    std::size_t undivided = 0;
    std::set<int> fieldCounts;
    while (!rows.atEnd() && records.size() <= MostWordsRead) {
        if (rows.isComment()) {
            rows.passLine();
            continue;
        }
        const int fields = rows.next(record);
        if (rows.wasEmpty())
            continue;
        if (fields == 1) {
            ++undivided;
            continue;
        }
        fieldCounts.insert(fields);
        records.push_back(record);
    }
    const bool isOurs = separator == Semicolon && rows.hadComma() && fieldCounts.size() > 1;
    if (isOurs || records.size() <= undivided)
        return {};
    return records;
}

std::string tabListOf(std::span<const WordRecord> records)
{
    std::string text;
    for (const WordRecord& record : records)
        text += lineOf(record);
    const bool readsAsCommaList = !records.empty() && readCommaList(text).hasThreeFieldsALine;
    return readsAsCommaList ? std::string(TabComment) + text : text;
}

WordRecord asWrittenWithTabs(WordRecord record)
{
    const auto divides = [](char letter) { return isOneOf(TabsAndLineEnds, letter); };
    for (const WordField field : WordFields)
        std::ranges::replace_if(record.*field, divides, ' ');
    return record;
}

} // namespace vocabulary
