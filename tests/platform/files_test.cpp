#include "platform/file_replacement.h"
#include "platform/text_file.h"
#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"

#include <set>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

using Files = tests::FreshState;

const std::string OldBytes = "the old words\n";
const std::string NewBytes(100, 'x');

// Replaces "a.lst" in a process that the system kills when it writes past so many bytes.
void replaceUntilKilled(rlim_t bytes)
{
    const rlimit noCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    const tests::FullDisk disk(bytes);
    std::signal(SIGXFSZ, SIG_DFL);
    platform::replaceFile("a.lst", NewBytes);
}

// The files of the current folder beside "a.lst".
std::set<fs::path> filesBeside()
{
    std::set<fs::path> files{fs::directory_iterator("."), fs::directory_iterator()};
    files.erase("./a.lst");
    return files;
}

// What a crash left beside the file, or another program writes there, is in nobody's way.
TEST_F(Files, AreReplacedWholeOrNotAtAllOnAFullDiskOrKilledAtAnyByteAndWhatStandsBesideIsLeftAlone)
{
    for (const rlim_t written : {0U, 1U, 50U, 99U}) {
        tests::writeFile("a.lst", OldBytes);
        {
            const tests::FullDisk disk(written);
            EXPECT_EQ(platform::replaceFile("a.lst", NewBytes).value().message(), "a.lst: File too large");
        }
        EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes) << written;
        EXPECT_TRUE(filesBeside().empty());
        ASSERT_EXIT(replaceUntilKilled(written), testing::KilledBySignal(SIGXFSZ), "");
        EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes) << written;
        EXPECT_FALSE(platform::replaceFile("a.lst", "two\r\nthree\r\n"));
        EXPECT_EQ(tests::bytesOf("a.lst"), "two\r\nthree\r\n");
        ASSERT_EQ(filesBeside().size(), 1U);
        EXPECT_EQ(tests::bytesOf(*filesBeside().begin()), NewBytes.substr(0, written));
        fs::remove(*filesBeside().begin());
    }
}

TEST_F(Files, AreNeitherReadNorWrittenWhereTheyAreNoFilesOrHaveNoFolder)
{
    fs::create_directory("folder");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0); // a pipe would be waited for
    for (const auto& [target, link] :
         {std::pair{"pipe", "link"}, {"nowhere/b", "astray"}, {"round", "round"}})
        fs::create_symlink(target, link);
    const auto before = filesBeside();
    for (const auto& [name, reason] : {std::pair{"folder", ": Is a directory"},
                                       {"pipe", ": not a file that can be written"},
                                       {"link", ": not a file that can be written"},
                                       {"astray", ": No such file or directory"},
                                       {"round", ": Too many levels of symbolic links"}})
        EXPECT_EQ(platform::replaceFile(name, "x").value().message(), std::string(name) + reason);
    EXPECT_TRUE(platform::replaceFile("nowhere/a.lst", "x"));
    EXPECT_EQ(platform::readTextFile("nowhere").fault->message(), "nowhere: No such file or directory");
    for (const std::string name : {"folder", "pipe"})
        EXPECT_EQ(platform::readTextFile(name).fault->message(), name + ": not a file that can be read");
    EXPECT_EQ(filesBeside(), before);
}

TEST_F(Files, KeepTheirLinkAndTheirRightsAndAreMadeWhereTheyAreMissing)
{
    fs::create_directory("folder");
    fs::create_symlink("../real.lst", "folder/link.lst");
    EXPECT_FALSE(platform::replaceFile("folder/link.lst", "made"));
    for (const auto rights : {fs::perms{0600}, fs::perms{0666}}) {
        fs::permissions("real.lst", rights);
        EXPECT_FALSE(platform::replaceFile("folder/link.lst", "new"));
        EXPECT_TRUE(fs::is_symlink("folder/link.lst"));
        EXPECT_EQ(tests::bytesOf("real.lst"), "new");
        EXPECT_EQ(fs::status("real.lst").permissions(), rights);
    }
}

TEST_F(Files, AreCutAfterAWholeLineWhereTheyAreOverlong)
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
