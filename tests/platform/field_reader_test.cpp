#include "platform/field_line.h"
#include "platform/field_reader.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using platform::FieldReader;

// The fields of a text, each before its line and a bar.
std::string fieldsOf(const std::string& text)
{
    FieldReader reader(text);
    std::string fields;
    for (std::string field; !reader.atEnd() && reader.read(field);)
        fields += field + std::to_string(reader.line()) + '|';
    return fields;
}

TEST(FieldReader, EndsFieldsAtCommasAndLineEndsAndTellsTheirLines)
{
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},                        {",", "1|1|"},                      {"\n\n", "1|2|"},
        {"a", "a1|"},                    {"a\n", "a1|"},                     {"a\rb", "a1|b2|"},
        {"a,", "a1|1|"},                 {"a,\n", "a1|1|"},                  {"a,b\r\nc\r\n", "a1|b1|c2|"},
        {" , \"\"", "1|1|"},             {"  du:c \t, duct  \n", "du:c1|duct1|"},
        {"\" a \" cut,x", " a 1|x1|"},   {"\"Rome, Italy\",x", "Rome, Italy1|x1|"},
        {"\"never closed\nb", "never closed1|b2|"},
    };
    // clang-format on
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(fieldsOf(text), expected) << text;
}

TEST(FieldReader, TakesOnlyWholeNumbersThatFit)
{
    std::int16_t number = 77;
    for (const char* const text : {"32768", "-32769", "", "\n", "two", "2a", "2.5", "- 1", "0x10"})
        EXPECT_FALSE(FieldReader(text).read(number)) << text;
    EXPECT_EQ(number, 77);
    for (const auto& [text, expected] : {std::pair{" 2", 2}, {"-1", -1}, {" 0 ", 0}, {"32767", 32767}}) {
        EXPECT_TRUE(FieldReader(text).read(number)) << text;
        EXPECT_EQ(number, expected);
    }
}

TEST(FieldReader, ReadsFieldsAgainThatWereWrittenAsALine)
{
    EXPECT_EQ(
        fieldsOf(platform::lineOfFields({"", "du:c", " a, b", "6\" long", "two\nlines", "\"x\"", "9\"", ""})),
        "1|du:c1| a, b1|6\" long1|two lines1|'x'1|9\"1|1|");
}

} // namespace
