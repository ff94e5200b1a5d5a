#include "platform/file_replacement.h"
#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"

#include <array>
#include <csignal>
#include <functional>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using FileReplacement = tests::FreshState;

const std::string OldBytes = "the old words\n";
const std::string NewBytes(100, 'x');

// The system kills the process that writes past so many bytes.
void killAtByte(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_DFL);
    const rlimit limit = {bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

// The system kills the process that makes this call.
void killAtCall(long call)
{
    std::array<sock_filter, 4> filter = {{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog program = {filter.size(), filter.data()};
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

// Replaces "a.lst" in a process of its own; true when that was killed.
bool killedWhileReplacing(const std::function<void()>& setTrap)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit noCore = {0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
        setTrap();
        platform::replaceFile("a.lst", NewBytes);
        ::_exit(EXIT_SUCCESS);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

void expectReplaceable()
{
    const std::string later = "the words of a later day\n";
    EXPECT_FALSE(platform::replaceFile("a.lst", later));
    EXPECT_EQ(tests::bytesOf("a.lst"), later);
    EXPECT_FALSE(fs::exists(".a.lst.being-written"));
}

TEST_F(FileReplacement, WritesExactlyTheBytes)
{
    EXPECT_FALSE(platform::replaceFile("a.lst", "one\r\n"));
    EXPECT_FALSE(platform::replaceFile("a.lst", "two\r\nthree\r\n"));
    EXPECT_EQ(tests::bytesOf("a.lst"), "two\r\nthree\r\n");
    EXPECT_FALSE(fs::exists(".a.lst.being-written"));
}

TEST_F(FileReplacement, LeavesTheOldFileWholeOnAFullDisk)
{
    tests::writeFile("a.lst", "the old words\n");
    for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{99}}) {
        const tests::FullDisk disk(room);
        const auto fault = platform::replaceFile("a.lst", std::string(100, 'x'));
        ASSERT_TRUE(fault.has_value()) << room;
        EXPECT_EQ(fault->message(), "a.lst: File too large");
        EXPECT_EQ(tests::bytesOf("a.lst"), "the old words\n");
        EXPECT_FALSE(fs::exists(".a.lst.being-written"));
    }
}

TEST_F(FileReplacement, RefusesWhatIsNoFileOrHasNoFolder)
{
    fs::create_directory("folder");
    EXPECT_EQ(platform::replaceFile("folder", "x")->message(), "folder: Is a directory");
    EXPECT_EQ(platform::replaceFile("nowhere/a.lst", "x")->message(), "a.lst: No such file or directory");
}

// In a process of its own, which may not write where only root may.
TEST_F(FileReplacement, LeavesTheFileWholeInAFolderThatMayNotBeWritten)
{
    tests::writeFile("a.lst", OldBytes);
    fs::permissions("a.lst", fs::perms{0666});
    fs::permissions(".", fs::perms{0555});
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        static_cast<void>(::seteuid(nobody));
        const bool refused = platform::replaceFile("a.lst", NewBytes).has_value();
        ::_exit(refused ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    fs::permissions(".", fs::perms{0755});
    EXPECT_EQ(status, 0);
    EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes);
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

TEST_F(FileReplacement, LeavesOtherFilesOfTheLearnerAlone)
{
    tests::writeFile("a.lst.new", "another list");
    EXPECT_FALSE(platform::replaceFile("a.lst", "words"));
    EXPECT_EQ(tests::bytesOf("a.lst.new"), "another list");
}

TEST_F(FileReplacement, PassesOverWhatACrashLeftBehind)
{
    tests::writeFile(".a.lst.being-written", "half a fi");
    fs::permissions(".a.lst.being-written", fs::perms::owner_read);
    EXPECT_FALSE(platform::replaceFile("a.lst", "whole"));
    EXPECT_EQ(tests::bytesOf("a.lst"), "whole");
}

TEST_F(FileReplacement, LeavesTheOldFileWholeWhenKilledAtAnyByte)
{
    for (const rlim_t written : {0U, 1U, 50U, 99U}) {
        tests::writeFile("a.lst", OldBytes);
        ASSERT_TRUE(killedWhileReplacing([&] { killAtByte(written); })) << written;
        EXPECT_EQ(tests::bytesOf("a.lst"), OldBytes) << written;
        EXPECT_EQ(tests::bytesOf(".a.lst.being-written"), NewBytes.substr(0, written));
        expectReplaceable();
    }
}

TEST_F(FileReplacement, LeavesTheOldOrTheNewFileWholeWhenKilledAtAnyStep)
{
    const std::array steps = {std::pair{SYS_openat, OldBytes}, std::pair{SYS_write, OldBytes},
                              std::pair{SYS_fsync, OldBytes}, std::pair{SYS_rename, OldBytes},
                              std::pair{SYS_close, NewBytes}};
    for (const auto& [step, left] : steps) {
        tests::writeFile("a.lst", OldBytes);
        ASSERT_TRUE(killedWhileReplacing([&, call = step] { killAtCall(call); })) << step;
        EXPECT_EQ(tests::bytesOf("a.lst"), left) << step;
        expectReplaceable();
    }
}

} // namespace
