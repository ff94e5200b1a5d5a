#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <string>

namespace platform {

/// Which double quote closes a field that begins with one.
enum class ClosingQuote {
    First,           ///< the next one
    BeforeSeparator, ///< the next one with only blanks between it and a comma or the line's end, if any has
};

/// Reads a text field by field.
///
/// A field ends at a comma or at the end of its line; an empty line is an empty field. Blanks around a field
/// are not part of it. A field may stand in double quotes: then commas and blanks inside the quotes belong to
/// it, and what follows the closing quote up to the comma or line end is passed over. One that is not closed
/// ends with its line. Lines end with LF, CR LF or CR; the last line may lack its end.
class FieldReader {
public:
    explicit FieldReader(std::string text, ClosingQuote closing = ClosingQuote::First);

    /// Reads the next field. Returns false, and leaves `field` as it was, when the text has no further one.
    bool read(std::string& field);

    /// Reads the next field as it stands: the text up to the comma or line end, blanks and quotes with it.
    /// Returns false, and leaves `field` as it was, when the text has no further one.
    bool readBare(std::string& field);

    /// Reads the next field as a decimal number. Returns false, and leaves `number` as it was, when there is
    /// no further field, or when it is empty, holds anything but a number, or does not fit the type.
    template <std::integral Number>
    bool read(Number& number);

    /// Passes over so many fields. Returns false where there are fewer.
    bool skip(int fields);

    /// True when no field is left.
    bool atEnd() const;

    /// True when the last field read was the last of its line.
    bool endedLine() const { return !afterComma_; }

    /// The line that the last field read stands in, counted from 1; 0 before the first.
    int line() const { return line_; }

private:
    bool isQuote(std::size_t place) const;
    bool isBeforeSeparator(std::size_t place) const;
    std::size_t closingQuote();
    void takeSeparator();
    std::string quotedField();
    std::string bareField();

    std::string text_;
    ClosingQuote closing_;
    std::size_t position_ = 0;

    /// The next double quote before a separator, or the end of a line without one, where it was looked for.
    std::size_t quoteBeforeSeparator_ = 0;
    int line_ = 0;
    int nextLine_ = 1;
    bool afterComma_ = false;
};

template <std::integral Number>
bool FieldReader::read(Number& number)
{
    std::string field;
    if (!read(field))
        return false;
    Number value{};
    const char* const end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, value);
    if (error != std::errc{} || stop != end)
        return false;
    number = value;
    return true;
}

} // namespace platform
