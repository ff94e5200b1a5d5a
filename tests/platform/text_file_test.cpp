#include "platform/text_file.h"
#include "tests/support/fresh_state.h"

#include <sys/stat.h>

namespace {

using TextFile = tests::FreshState;

TEST_F(TextFile, SaysWhichFileCannotBeReadAndWhy)
{
    EXPECT_EQ(platform::readTextFile("none.lst").fault->message(), "none.lst: No such file or directory");
    std::filesystem::create_directory("folder.lst");
    EXPECT_EQ(platform::readTextFile("folder.lst").fault->message(),
              "folder.lst: not a file that can be read");
}

TEST_F(TextFile, NeverWaitsForAPipe)
{
    ASSERT_EQ(::mkfifo("pipe.lst", 0600), 0);
    EXPECT_TRUE(platform::readTextFile("pipe.lst").fault.has_value());
}

TEST_F(TextFile, CutsAnOverlongFileAfterAWholeLine)
{
    std::string bytes;
    while (bytes.size() <= platform::LongestFile)
        bytes += "amo:, I love\n";
    tests::writeFile("long.lst", bytes);
    const std::string text = platform::readTextFile("long.lst").text;
    EXPECT_LE(text.size(), platform::LongestFile);
    EXPECT_TRUE(text.ends_with("love\n"));
}

} // namespace
