#include "app/progress_navigation.h"

#include "progress/sqlite/store_loader.h"
#include "shell/looks.h"
#include "shell/looks_file.h"

#include <chrono>
#include <utility>

namespace app {

namespace {

constexpr auto RecordName = "progress.db";

// By then the judgement is painted, and hardly a key is pressed again.
constexpr std::chrono::milliseconds UntilKept{100};

} // namespace

ProgressNavigation::ProgressNavigation(CommonWindows& common)
    : common_(common), keeper_(RecordName, progress::openStore)
{
    keeper_.switchKeeping(shell::looks.KeepAnswers);
    pause_.setSingleShot(true);
    pause_.setInterval(UntilKept);
    connect(&pause_, &QTimer::timeout, this, &ProgressNavigation::keepWaiting);
    shell::listenToAnswers([this](const shell::AnswerRecord& answer) { hear(answer); });
    common_.whenDrillIsLeft([this] { endDrill(); });
}

ProgressNavigation::~ProgressNavigation()
{
    shell::listenToAnswers({});
    common_.whenDrillIsLeft({});
    keepWaiting();
}

void ProgressNavigation::switchKeeping(bool on)
{
    keepWaiting();
    keeper_.switchKeeping(on);
    shell::looks.KeepAnswers = on;
    shell::keepLooks();
    common_.mainMenu().forgetLastDrill();
}

void ProgressNavigation::hear(const shell::AnswerRecord& answer)
{
    keepWaiting();
    waiting_ = answer;
    pause_.start();
}

void ProgressNavigation::keepWaiting()
{
    if (!waiting_)
        return;
    if (!std::exchange(drillRuns_, true))
        keeper_.beginDrill();
    keeper_.keep(*std::exchange(waiting_, std::nullopt));
}

void ProgressNavigation::endDrill()
{
    keepWaiting();
    if (!std::exchange(drillRuns_, false) || !keeper_.keeps()) {
        common_.mainMenu().forgetLastDrill();
        return;
    }
    keeper_.endDrill();
    const progress::DrillCount count = keeper_.drillCount();
    common_.mainMenu().showLastDrill(count.right, count.toRepeat);
}

} // namespace app
