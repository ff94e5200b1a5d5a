#include "platform/code_page.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using namespace std::string_view_literals;

TEST(CodePage, ReadsUtf8AsItIsUtf16WithItsMarkAndAnythingElseAsWindows1252)
{
    // clang-format off
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {"gr\303\244be", "gräbe"},
        {"\xEF\xBB\xBF" "a", "a"},
        {"\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F", "€\xC2\x81‚ƒ„…†‡ˆ‰Š‹Œ\xC2\x8DŽ\xC2\x8F"},
        {"\x90\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E\x9F", "\xC2\x90‘’“”•–—˜™š›œ\xC2\x9DžŸ"},
        {"\xA0\xC4\xFF", "\u00A0Äÿ"},
        {"\377\376\141\000\001\001\064\330\036\335"sv, "aā𝄞"},
        {"\376\377\000\141\001\001\330\064\335\036"sv, "aā𝄞"},
        {"\377\376\075\330a\0"sv, "\uFFFDa"},
        {"\377\376a,", "ÿþa,"},
    };
    // clang-format on
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(platform::decoded(bytes), text);
        EXPECT_EQ(platform::decoded(platform::encoded(text)), text);
    }
}

TEST(CodePage, KnowsMalformedUtf8)
{
    for (const char* const bytes :
         {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\x80", "\xC3", "\xE2\x82", "\xC3("})
        EXPECT_FALSE(platform::isUtf8(bytes)) << bytes;
    for (const char* const bytes : {"a", "\xC2\x80", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEF\xBF\xBF",
                                    "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(platform::isUtf8(bytes)) << bytes;
}

} // namespace
