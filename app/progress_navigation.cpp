#include "app/progress_navigation.h"

#include "platform/platform.h"
#include "progress/sqlite/store_loader.h"
#include "shell/looks.h"
#include "shell/looks_file.h"

#include <chrono>
#include <utility>

namespace app {

using progress::Progress;
using progress::ProgressErase;
using progress::Review;

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
    connect(&common_.mainMenu(), &shell::MainMenu::progressRequested, this, [this] {
        common_.mainMenu().hide();
        openProgress();
    });
    connect(&common_.mainMenu(), &shell::MainMenu::reviewRequested, this, &ProgressNavigation::openReview);
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

void ProgressNavigation::joinProgress(Progress& window)
{
    whenLeft(window, [this] { common_.toMainMenu(); });
    connect(&window, &Progress::keepingSwitched, this, [this](bool on) { switchKeeping(on); });
    connect(&window, &Progress::erasureRequested, this, [this] { erase_->open(); });
    connect(&window, &Progress::reviewRequested, this, &ProgressNavigation::openReviewFromProgress);
}

void ProgressNavigation::joinErase(ProgressErase& window)
{
    hideWhenLeft(window);
    connect(&window, &ProgressErase::erasureAllowed, &window, &ProgressErase::hide);
    connect(&window, &ProgressErase::erasureAllowed, this, &ProgressNavigation::eraseAnswers);
}

void ProgressNavigation::joinReview(Review& window)
{
    common_.joinDrill(window, [this] { afterReview_(); });
}

void ProgressNavigation::openProgress()
{
    keepWaiting();
    progress_->open(keeper_);
}

void ProgressNavigation::openReview()
{
    common_.mainMenu().hide();
    afterReview_ = [this] { common_.toMainMenu(); };
    beginReview();
}

void ProgressNavigation::openReviewFromProgress()
{
    progress_->hide();
    afterReview_ = [this] { openProgress(); };
    beginReview();
}

void ProgressNavigation::beginReview()
{
    const Hourglass hourglass;
    keepWaiting();
    drillRuns_ = false;
    review_->open(keeper_);
}

void ProgressNavigation::eraseAnswers()
{
    keepWaiting();
    progress::Store* const store = keeper_.store();
    const auto trouble = store == nullptr ? progress::Trouble::None : store->clear();
    if (const auto sentence = progress::sentenceFor(trouble); !sentence.empty())
        platform::current().showMessage(std::string(sentence));
    common_.mainMenu().forgetLastDrill();
    progress_->refresh();
}

} // namespace app
