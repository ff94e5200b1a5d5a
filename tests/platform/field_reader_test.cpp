#include "platform/field_reader.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using platform::FieldReader;

// The fields of a text, each between bars.
std::string fieldsOf(const std::string& text)
{
    FieldReader reader(text);
    std::string fields = "|";
    for (std::string field; reader.read(field);)
        fields += field + '|';
    return fields;
}

TEST(FieldReader, EndsFieldsAtCommasAndLineEnds)
{
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "|"},                           {",", "|||"},
        {"a", "|a|"},                        {"a\n", "|a|"},
        {"a,", "|a||"},                      {"a,\n", "|a||"},
        {"a,b\nc\n", "|a|b|c|"},             {"\n\n", "|||"},
        {"a\r\nb\r\n", "|a|b|"},             {"a\rb", "|a|b|"},
        {"  du:c \t, duct  \n", "|du:c|duct|"}, {" , \"\"", "|||"},
        {"\"Rome, Italy\",x", "|Rome, Italy|x|"}, {"\" a \" trailing,x", "| a |x|"},
        {"\"never closed\nb", "|never closed|b|"},
    };
    // clang-format on
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(fieldsOf(text), expected) << text;
}

TEST(FieldReader, TakesOnlyWholeNumbersThatFit)
{
    const auto numberOf = [](const std::string& text) {
        std::int16_t number = 77;
        const bool readable = FieldReader(text).read(number);
        return readable ? number : number + 10000;
    };
    for (const auto& [text, number] : {std::pair{" 2", 2}, {"-1", -1}, {" 0 ", 0}, {"32767", 32767}})
        EXPECT_EQ(numberOf(text), number);
    for (const char* const text : {"32768", "-32769", "", "\n", "two", "2a", "2.5", "- 1", "0x10"})
        EXPECT_EQ(numberOf(text), 10077) << text;
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
