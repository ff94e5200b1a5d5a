#include "app/application.h"
#include "app/command_line.h"
#include "app/working_folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/window_test.h"

namespace {

namespace fs = std::filesystem;

TEST(CommandLine, TakesOneFolderAndKnowsItsOptions)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, "here"},
        {{"lists"}, "lists"},
        {{"--help"}, "Usage: mo"},
        {{"--version"}, "morvanti "},
        {{"-x"}, "unknown option -x"},
        {{"one", "two"}, "more than one folder: two"},
    };
    for (const auto& [arguments, said] : cases) {
        const app::CommandLine line = app::readCommandLine(arguments);
        EXPECT_EQ(line.fault.value_or(line.answer.value_or(line.folder.value_or("here")).substr(0, 9)), said);
    }
}

// What is thrown while an event is handled, such as an index past a table, ends the program with one line.
TEST(Faults, EndTheProgramWithOneLineAndStatusOne)
{
    const auto run = [] {
        std::string name = "morvanti";
        char* arguments[] = {name.data(), nullptr};
        int count = 1;
        app::Application application(count, arguments);
        QTimer::singleShot(0, [] { throw std::out_of_range("no such word"); });
        QCoreApplication::processEvents();
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(EXIT_FAILURE), "morvanti: no such word\n$");
}

using WorkingFolder = tests::FreshState;

TEST_F(WorkingFolder, IsTheOneGivenOrTheCurrentOneWithAVerbListOrTheLearnersOwnFilledOnceAndWhole)
{
    const fs::path top = fs::current_path();
    qputenv("XDG_DATA_HOME", (top / "own").c_str());
    fs::create_directory("samples");
    fs::create_directories("work/mine");
    for (const std::string name : {"verbs.cfg", "VELMOR2.WAV", "right.wav", "make-sounds"})
        tests::writeFile("samples/" + name, name);
    // The fault, where there is one, or else the name of the folder that the program works in then.
    const auto enter = [&](const std::optional<std::string>& folder = {}) {
        fs::current_path(top / "work");
        return app::enterWorkingFolder(folder, top / "samples").value_or(fs::current_path().filename());
    };
    {
        const tests::FullDisk disk(1);
        EXPECT_EQ(enter(), "work");
    }
    EXPECT_TRUE(fs::is_empty(app::ownFolder()));
    tests::writeFile((app::ownFolder() / "right.wav").string(), "my own");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_EQ(fs::current_path(), fs::canonical(app::ownFolder()));
    EXPECT_EQ(tests::bytesOf("verbs.cfg") + tests::bytesOf("VELMOR2.WAV"), "verbs.cfgVELMOR2.WAV");
    EXPECT_EQ(tests::bytesOf("right.wav"), "my own");
    EXPECT_FALSE(fs::exists("make-sounds"));
    fs::remove("VELMOR2.WAV");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_FALSE(fs::exists("VELMOR2.WAV"));

    EXPECT_EQ(enter("nowhere"), "nowhere: No such file or directory");
    tests::writeFile("verbs.cfg", "");
    EXPECT_EQ(enter("mine"), "mine");
    EXPECT_EQ(enter(), "work");
    fs::remove("verbs.cfg");
    fs::remove_all("../own");
    tests::writeFile("../own", "a file");
    EXPECT_EQ(enter(), "work");
}

} // namespace
