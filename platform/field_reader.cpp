#include "platform/field_reader.h"

#include <string_view>
#include <utility>

namespace platform {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEnds = "\r\n";

std::string withoutBlanksAtEnd(std::string text)
{
    text.erase(text.find_last_not_of(Blanks) + 1);
    return text;
}

} // namespace

FieldReader::FieldReader(std::string text) : text_(std::move(text)) {}

bool FieldReader::read(std::string& field)
{
    if (atEnd())
        return false;
    line_ = nextLine_;
    skipBlanks();
    const bool quoted = position_ < text_.size() && text_[position_] == '"';
    field = quoted ? quotedField() : withoutBlanksAtEnd(bareField());
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

void FieldReader::skipBlanks()
{
    while (position_ < text_.size() && Blanks.find(text_[position_]) != std::string_view::npos)
        ++position_;
}

bool FieldReader::atLineEnd() const
{
    return position_ >= text_.size() || LineEnds.find(text_[position_]) != std::string_view::npos;
}

std::string FieldReader::quotedField()
{
    const std::size_t begin = ++position_;
    while (!atLineEnd() && text_[position_] != '"')
        ++position_;
    std::string field = text_.substr(begin, position_ - begin);
    while (!atLineEnd() && text_[position_] != ',')
        ++position_;
    return field;
}

std::string FieldReader::bareField()
{
    const std::size_t begin = position_;
    while (!atLineEnd() && text_[position_] != ',')
        ++position_;
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
