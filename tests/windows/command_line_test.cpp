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

TEST(CommandLine, TakesOneFolderAndKnowsItsOptions)
{
    const auto said = [](const std::vector<std::string>& arguments) {
        const app::CommandLine line = app::readCommandLine(arguments);
        return line.fault.value_or(line.answer.value_or(line.folder.value_or("here")).substr(0, 9));
    };
    EXPECT_EQ(said({}), "here");
    EXPECT_EQ(said({"lists"}), "lists");
    EXPECT_EQ(said({"--help"}), "Usage: mo");
    EXPECT_EQ(said({"--version"}), "morvanti ");
    EXPECT_EQ(said({"-x"}), "unknown option -x");
    EXPECT_EQ(said({"one", "two"}), "more than one folder: two");
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
        for (const auto& [name, bytes] : {std::pair{"verbs.cfg", "verbs"},
                                          {"VELMOR2.WAV", "sound"},
                                          {"right.wav", "ding"},
                                          {"make-sounds", "#"}})
            tests::writeFile(std::string("samples/") + name, bytes);
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

TEST_F(WorkingFolder, IsTheOneGivenOrTheCurrentOneWhereItHasAVerbListOrTheOwnCannotBeMade)
{
    EXPECT_EQ(enter("nowhere"), "nowhere: No such file or directory");
    tests::writeFile("../own", "a file");
    EXPECT_EQ(enter(), "work");
    fs::remove("../own");
    tests::writeFile("verbs.cfg", "");
    EXPECT_EQ(enter("mine"), "mine");
    EXPECT_EQ(enter(), "work");
}

TEST_F(WorkingFolder, IsElseTheLearnersOwnFilledOnceAndWholeWithoutReplacingAnything)
{
    {
        const tests::FullDisk disk(1);
        EXPECT_EQ(enter(), "work");
    }
    EXPECT_TRUE(fs::is_empty(app::ownFolder()));
    tests::writeFile((app::ownFolder() / "right.wav").string(), "my own");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_EQ(fs::current_path(), fs::canonical(app::ownFolder()));
    EXPECT_EQ(tests::bytesOf("verbs.cfg") + tests::bytesOf("VELMOR2.WAV"), "verbssound");
    EXPECT_EQ(tests::bytesOf("right.wav"), "my own");
    EXPECT_FALSE(fs::exists("make-sounds"));

    fs::remove("VELMOR2.WAV");
    EXPECT_EQ(enter(), "morvanti");
    EXPECT_FALSE(fs::exists("VELMOR2.WAV"));
}

} // namespace
