#include "platform/field_reader.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

namespace {

using platform::FieldReader;

using Fields = std::vector<std::string>;

Fields fieldsOf(const std::string& text)
{
    FieldReader reader(text);
    Fields fields;
    std::string field;
    while (reader.read(field))
        fields.push_back(field);
    return fields;
}

TEST(FieldReader, EndsFieldsAtCommasAndLineEnds)
{
    const std::vector<std::pair<std::string, Fields>> cases = {
        {"", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a,b\nc\n", {"a", "b", "c"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\rb", {"a", "b"}},
        {"\n\n", {"", ""}},
        {"a,\n", {"a", ""}},
        {"a,", {"a", ""}},
        {",", {"", ""}},
        {"  du:c \t, duct  \n", {"du:c", "duct"}},
        {"\"Rome, Italy\",x", {"Rome, Italy", "x"}},
        {"\" a \" trailing,x", {" a ", "x"}},
        {"\"never closed\nb", {"never closed", "b"}},
        {"\"\"", {""}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(fieldsOf(text), expected) << text;
}

TEST(FieldReader, TakesOnlyWholeNumbersThatFit)
{
    const std::vector<std::pair<std::string, bool>> cases = {
        {" 2", true},      {"-1", true},   {" 0 ", true},   {"32767", true}, {"32768", false},
        {"-32769", false}, {"", false},    {"\n", false},   {"two", false},  {"2a", false},
        {"2.5", false},    {"- 1", false}, {"0x10", false},
    };
    for (const auto& [text, readable] : cases) {
        FieldReader reader(text);
        std::int16_t number = 77;
        EXPECT_EQ(reader.read(number), readable) << text;
        if (!readable) {
            EXPECT_EQ(number, 77) << text;
        }
    }
}

TEST(FieldReader, TellsTheLineOfAField)
{
    FieldReader reader("a,b\r\nc");
    std::string field;
    reader.read(field);
    reader.read(field);
    EXPECT_EQ(reader.line(), 1);
    reader.read(field);
    EXPECT_EQ(reader.line(), 2);
    EXPECT_TRUE(reader.atEnd());
}

} // namespace
