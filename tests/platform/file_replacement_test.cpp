#include "platform/file_replacement.h"
#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using FileReplacement = tests::FreshState;

const std::string OldBytes = "the old words\n";
const std::string NewBytes(100, 'x');

// Replaces "a.lst" in a process of its own, which the system kills when it writes past so many bytes.
bool killedWhileReplacing(rlim_t bytes)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit noCore = {0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
        std::signal(SIGXFSZ, SIG_DFL);
        const rlimit limit = {bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        platform::replaceFile("a.lst", NewBytes);
        ::_exit(EXIT_SUCCESS);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

TEST_F(FileReplacement, LeavesTheOldFileWholeOnAFullDisk)
{
    tests::writeFile("a.lst", OldBytes);
    for (const rlim_t room : {0U, 1U, 99U}) {
        const tests::FullDisk disk(room);
        const auto fault = platform::replaceFile("a.lst", NewBytes);
        ASSERT_TRUE(fault.has_value()) << room;
        EXPECT_EQ(fault->message(), "a.lst: File too large");
        EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes);
        EXPECT_FALSE(fs::exists(".a.lst.being-written"));
    }
}

// What a crash left beside the file is in nobody's way.
TEST_F(FileReplacement, LeavesTheOldFileWholeWhenKilledAtAnyByte)
{
    for (const rlim_t written : {0U, 1U, 50U, 99U}) {
        tests::writeFile("a.lst", OldBytes);
        ASSERT_TRUE(killedWhileReplacing(written)) << written;
        EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes) << written;
        EXPECT_EQ(tests::bytesOf(".a.lst.being-written"), NewBytes.substr(0, written));
        EXPECT_FALSE(platform::replaceFile("a.lst", "two\r\nthree\r\n"));
        EXPECT_EQ(tests::bytesOf("a.lst"), "two\r\nthree\r\n");
        EXPECT_FALSE(fs::exists(".a.lst.being-written"));
    }
}

TEST_F(FileReplacement, RefusesWhatIsNoFileOrHasNoFolder)
{
    fs::create_directory("folder");
    EXPECT_EQ(platform::replaceFile("folder", "x")->message(), "folder: Is a directory");
    EXPECT_EQ(platform::replaceFile("nowhere/a.lst", "x")->message(), "a.lst: No such file or directory");
}

TEST_F(FileReplacement, KeepsALinkAndTheRightsOfTheFile)
{
    tests::writeFile("real.lst", "old");
    fs::create_symlink("real.lst", "link.lst");
    for (const auto rights : {fs::perms{0600}, fs::perms{0666}}) {
        fs::permissions("real.lst", rights);
        EXPECT_FALSE(platform::replaceFile("link.lst", "new"));
        EXPECT_TRUE(fs::is_symlink("link.lst"));
        EXPECT_EQ(tests::bytesOf("real.lst"), "new");
        EXPECT_EQ(fs::status("real.lst").permissions(), rights);
    }
}

} // namespace
