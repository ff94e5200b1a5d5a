#include "platform/field_reader.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using platform::FieldReader;

using Fields = std::vector<std::string>;

Fields fieldsOf(const std::string& text)
{
    FieldReader reader(text);
    Fields fields;
    for (std::string field; reader.read(field);)
        fields.push_back(field);
    return fields;
}

TEST(FieldReader, EndsFieldsAtCommasAndLineEnds)
{
    // clang-format off
    const std::vector<std::pair<std::string, Fields>> cases = {
        {"", {}},                            {",", {"", ""}},
        {"a", {"a"}},                        {"a\n", {"a"}},
        {"a,", {"a", ""}},                   {"a,\n", {"a", ""}},
        {"a,b\nc\n", {"a", "b", "c"}},       {"\n\n", {"", ""}},
        {"a\r\nb\r\n", {"a", "b"}},          {"a\rb", {"a", "b"}},
        {"  du:c \t, duct  \n", {"du:c", "duct"}},
        {"\"Rome, Italy\",x", {"Rome, Italy", "x"}},
        {"\" a \" trailing,x", {" a ", "x"}},
        {"\"never closed\nb", {"never closed", "b"}},
        {" , \"\"", {"", ""}},
    };
    // clang-format on
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
        EXPECT_EQ(number, readable ? std::stoi(text) : 77) << text;
    }
}

TEST(FieldReader, TellsTheLineOfAFieldAndWhereTheTextEnds)
{
    FieldReader reader("a,b\r\nc");
    std::string seen;
    for (std::string field; !reader.atEnd() && reader.read(field);)
        seen += field + std::to_string(reader.line());
    EXPECT_EQ(seen, "a1b1c2");
}

} // namespace
