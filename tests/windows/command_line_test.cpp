#include "app/application.h"
#include "app/command_line.h"
#include "app/working_folder.h"
#include "tests/support/fresh_state.h"
#include "tests/support/full_disk.h"

#include <QEvent>

#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace {

namespace fs = std::filesystem;

app::CommandLine read(const std::vector<std::string>& arguments)
{
    return app::readCommandLine(arguments);
}

TEST(CommandLine, TakesOneFolderAndKnowsItsOptions)
{
    EXPECT_FALSE(read({}).folder || read({}).fault || read({}).answer);
    EXPECT_EQ(read({"lists"}).folder, "lists");
    EXPECT_TRUE(read({"--help"}).answer.has_value());
    EXPECT_EQ(read({"--version"}).answer->substr(0, 9), "morvanti ");
    EXPECT_EQ(read({"-x"}).fault, "unknown option -x");
    EXPECT_TRUE(read({"one", "two"}).fault.has_value());
}

// What is thrown while an event is handled, such as an index past a table, ends the program with one line.
TEST(Faults, EndTheProgramWithOneLineAndStatusOne)
{
    class Faulty : public QObject {
        bool event(QEvent*) override { throw std::out_of_range("no such word"); }
    };
    const auto run = [] {
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        std::string name = "morvanti";
        char* arguments[] = {name.data(), nullptr};
        int count = 1;
        app::Application application(count, arguments);
        Faulty faulty;
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&faulty, &event);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(EXIT_FAILURE), "morvanti: no such word\n$");
}

class WorkingFolder : public tests::FreshState {
protected:
    WorkingFolder()
    {
        ::setenv("XDG_DATA_HOME", fs::absolute("own").c_str(), 1);
        fs::create_directory("samples");
        fs::create_directories("work/mine");
        tests::writeFile("samples/verbs.cfg", "verbs");
        tests::writeFile("samples/VELMOR2.WAV", "sound");
        tests::writeFile("samples/make-sounds", "script");
        fs::current_path("work");
    }

    // The fault, where there is one, or else the name of the folder that the program works in then.
    std::string enter(const std::optional<std::string>& folder = {}) const
    {
        fs::current_path(work_);
        return app::enterWorkingFolder(folder, samples_).value_or(fs::current_path().filename());
    }

    const fs::path work_ = fs::current_path() / "work";
    const fs::path samples_ = fs::current_path() / "samples";
};

TEST_F(WorkingFolder, IsTheOneGivenOrTheCurrentOneWhereItHasAVerbList)
{
    EXPECT_EQ(enter("nowhere"), "nowhere: No such file or directory");
    tests::writeFile("verbs.cfg", "");
    EXPECT_EQ(enter("mine"), "mine");
    EXPECT_EQ(enter(), "work");
}

TEST_F(WorkingFolder, IsElseTheLearnersOwnFilledOnceWithoutReplacingAnything)
{
    fs::create_directories(app::ownFolder());
    tests::writeFile((app::ownFolder() / "VELMOR2.WAV").string(), "my own");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_EQ(fs::current_path(), fs::canonical(app::ownFolder()));
    EXPECT_EQ(tests::bytesOf("verbs.cfg"), "verbs");
    EXPECT_EQ(tests::bytesOf("VELMOR2.WAV"), "my own");
    EXPECT_FALSE(fs::exists("make-sounds"));

    fs::remove("VELMOR2.WAV");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_FALSE(fs::exists("VELMOR2.WAV"));
}

TEST_F(WorkingFolder, IsFilledWholeAtTheNextStartWhereTheDiskWasFull)
{
    {
        const tests::FullDisk disk(1);
        EXPECT_EQ(enter(), "work");
    }
    EXPECT_TRUE(fs::is_empty(app::ownFolder()));
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_EQ(tests::bytesOf("verbs.cfg"), "verbs");
    EXPECT_EQ(tests::bytesOf("VELMOR2.WAV"), "sound");
}

TEST_F(WorkingFolder, IsTheCurrentOneWhereAFileStandsInTheWayOfTheOwn)
{
    tests::writeFile("../own", "a file");
    EXPECT_EQ(enter(), "work");
}

} // namespace
