#include "app/progress_navigation.h"

#include "progress/sqlite/store_loader.h"

namespace app {

namespace {

constexpr auto RecordName = "progress.db";

} // namespace

ProgressNavigation::ProgressNavigation(CommonWindows& common)
    : common_(common), keeper_(RecordName, progress::openStore)
{
    shell::listenToAnswers([this](const shell::AnswerRecord& answer) { keeper_.keep(answer); });
}

ProgressNavigation::~ProgressNavigation()
{
    shell::listenToAnswers({});
}

} // namespace app
