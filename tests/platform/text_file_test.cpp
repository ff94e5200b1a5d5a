#include "platform/text_file.h"
#include "tests/support/fresh_state.h"

#include <sys/stat.h>

namespace {

using TextFile = tests::FreshState;

TEST_F(TextFile, SaysWhichFileCannotBeReadAndWhy)
{
    std::filesystem::create_directory("folder");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0); // a pipe would be waited for
    EXPECT_EQ(platform::readTextFile("none").fault->message(), "none: No such file or directory");
    for (const std::string name : {"folder", "pipe"})
        EXPECT_EQ(platform::readTextFile(name).fault->message(), name + ": not a file that can be read");
}

TEST_F(TextFile, CutsAnOverlongFileAfterAWholeLine)
{
    std::string bytes;
    while (bytes.size() <= platform::LongestFile)
        bytes += "amo:, I love\n";
    tests::writeFile("long.lst", bytes);
    const std::string text = platform::readTextFile("long.lst").text;
    EXPECT_EQ(text.size(), platform::LongestFile / 13 * 13);
    EXPECT_TRUE(text.ends_with("love\n"));
}

} // namespace
