#include "app/application.h"
#include "app/command_line.h"
#include "app/navigation.h"
#include "app/qt_platform.h"
#include "app/start_and_end.h"
#include "app/working_folder.h"
#include "platform/platform.h"
#include "platform/random.h"

#include <cstdlib>
#include <iostream>
#include <vector>

namespace {

constexpr int WrongCall = 2;

int tell(const std::string& answer)
{
    std::cout << answer << std::endl;
    return EXIT_SUCCESS;
}

int refuse(const std::string& fault)
{
    app::tellFault(fault);
    return WrongCall;
}

// What is left of them once Qt has taken its own.
std::vector<std::string> argumentsOf(const QStringList& words)
{
    std::vector<std::string> arguments;
    for (const QString& word : words.sliced(1))
        arguments.push_back(word.toStdString());
    return arguments;
}

int run(int argumentCount, char** arguments)
{
    app::Application application(argumentCount, arguments);
    const app::CommandLine line = app::readCommandLine(argumentsOf(app::Application::arguments()));
    if (line.fault)
        return refuse(*line.fault);
    if (line.answer)
        return tell(*line.answer);
    const auto samples = app::samplesBeside(app::Application::applicationDirPath().toStdString());
    if (const auto fault = app::enterWorkingFolder(line.folder, samples))
        return refuse(*fault);

    app::QtPlatform platform;
    platform::use(platform);
    platform::seedFromClock();
    app::loadLooks();
    app::Navigation navigation;
    navigation.start();
    return app::Application::exec();
}

} // namespace

// A question about the program is answered where there is no display, too.
int main(int argumentCount, char** arguments)
{
    const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
    if (const auto answer = app::readCommandLine(words).answer)
        return tell(*answer);
    try {
        return run(argumentCount, arguments);
    } catch (const std::exception& fault) {
        app::endWithFault(fault);
    }
}
