#include "platform/field_reader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace platform {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view Separators = ",\r\n";
constexpr std::string_view QuoteAndLineEnds = "\"\r\n";

// The first of these letters from a place on, or the end of the text.
std::size_t nextOf(std::string_view letters, std::string_view text, std::size_t place)
{
    return std::min(text.find_first_of(letters, place), text.size());
}

std::size_t pastBlanks(std::string_view text, std::size_t place)
{
    return std::min(text.find_first_not_of(Blanks, place), text.size());
}

std::string withoutBlanksAtEnd(std::string text)
{
    text.erase(text.find_last_not_of(Blanks) + 1);
    return text;
}

} // namespace

FieldReader::FieldReader(std::string text, ClosingQuote closing) : text_(std::move(text)), closing_(closing)
{
}

bool FieldReader::read(std::string& field)
{
    if (atEnd())
        return false;
    line_ = nextLine_;
    position_ = pastBlanks(text_, position_);
    field = isQuote(position_) ? quotedField() : withoutBlanksAtEnd(bareField());
    takeSeparator();
    return true;
}

bool FieldReader::readBare(std::string& field)
{
    if (atEnd())
        return false;
    line_ = nextLine_;
    field = bareField();
    takeSeparator();
    return true;
}

bool FieldReader::skip(int fields)
{
    std::string passedOver;
    while (fields > 0 && read(passedOver))
        --fields;
    return fields <= 0;
}

// A comma promises one more field, be it empty, even at the end of the text.
bool FieldReader::atEnd() const
{
    return position_ >= text_.size() && !afterComma_;
}

bool FieldReader::isQuote(std::size_t place) const
{
    return place < text_.size() && text_[place] == '"';
}

bool FieldReader::isBeforeSeparator(std::size_t place) const
{
    const std::size_t next = pastBlanks(text_, place + 1);
    return next == text_.size() || Separators.find(text_[next]) != Separators.npos;
}

// A line may be as long as the file: what was found for one field serves the next ones.
std::size_t FieldReader::closingQuote()
{
    const std::size_t first = nextOf(QuoteAndLineEnds, text_, position_);
    if (closing_ == ClosingQuote::First)
        return first;
    std::size_t& place = quoteBeforeSeparator_;
    if (place < position_) {
        place = first;
        while (isQuote(place) && !isBeforeSeparator(place))
            place = nextOf(QuoteAndLineEnds, text_, place + 1);
    }
    return isQuote(place) ? place : first;
}

std::string FieldReader::quotedField()
{
    const std::size_t begin = ++position_;
    position_ = closingQuote();
    std::string field = text_.substr(begin, position_ - begin);
    position_ = nextOf(Separators, text_, position_);
    return field;
}

std::string FieldReader::bareField()
{
    const std::size_t begin = position_;
    position_ = nextOf(Separators, text_, begin);
    return text_.substr(begin, position_ - begin);
}

void FieldReader::takeSeparator()
{
    afterComma_ = position_ < text_.size() && text_[position_] == ',';
    if (position_ >= text_.size())
        return;
    const char separator = text_[position_++];
    if (afterComma_)
        return;
    ++nextLine_;
    if (separator == '\r' && position_ < text_.size() && text_[position_] == '\n')
        ++position_;
}

} // namespace platform
