#include "platform/file_replacement.h"
#include "tests/support/fresh_state.h"

#include <csignal>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;

using FileReplacement = tests::FreshState;

// As long as it lives, no file can grow past so many bytes: what a full disk does.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small = {bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

TEST_F(FileReplacement, WritesExactlyTheBytes)
{
    EXPECT_FALSE(platform::replaceFile("a.lst", "one\r\n"));
    EXPECT_FALSE(platform::replaceFile("a.lst", "two\r\nthree\r\n"));
    EXPECT_EQ(tests::bytesOf("a.lst"), "two\r\nthree\r\n");
    EXPECT_FALSE(fs::exists("a.lst.new"));
}

TEST_F(FileReplacement, LeavesTheOldFileWholeOnAFullDisk)
{
    tests::writeFile("a.lst", "the old words\n");
    for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{99}}) {
        const FullDisk disk(room);
        const auto fault = platform::replaceFile("a.lst", std::string(100, 'x'));
        ASSERT_TRUE(fault.has_value()) << room;
        EXPECT_EQ(fault->message(), "a.lst: File too large");
        EXPECT_EQ(tests::bytesOf("a.lst"), "the old words\n");
        EXPECT_FALSE(fs::exists("a.lst.new"));
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
    fs::permissions("real.lst", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.lst", "link.lst");
    EXPECT_FALSE(platform::replaceFile("link.lst", "new"));
    EXPECT_TRUE(fs::is_symlink("link.lst"));
    EXPECT_EQ(tests::bytesOf("real.lst"), "new");
    EXPECT_EQ(fs::status("real.lst").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FileReplacement, PassesOverWhatACrashLeftBehind)
{
    tests::writeFile("a.lst.new", "half a fi");
    fs::permissions("a.lst.new", fs::perms::owner_read);
    EXPECT_FALSE(platform::replaceFile("a.lst", "whole"));
    EXPECT_EQ(tests::bytesOf("a.lst"), "whole");
}

} // namespace
