#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePage, ReadsUtf8AsItIsAndSkipsTheByteOrderMark)
{
    EXPECT_EQ(platform::decoded("gr\xC3\xA4"
                                "be"),
              "gräbe");
    EXPECT_EQ(platform::decoded("\xEF\xBB\xBF"
                                "a"),
              "a");
    EXPECT_EQ(platform::decoded(""), "");
}

TEST(CodePage, ReadsAnythingElseAsWindows1252)
{
    EXPECT_EQ(platform::decoded("gr\xE4"
                                "be"),
              "gräbe");
    EXPECT_EQ(platform::decoded("\x80 \x9C \xFF"), "€ œ ÿ");
    EXPECT_EQ(platform::decoded("\x81"), "\xEF\xBF\xBD");
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
