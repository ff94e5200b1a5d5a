#include "app/progress_navigation.h"

#include "platform/platform.h"
#include "progress/sqlite/store_loader.h"

namespace app {

using progress::Progress;
using progress::ProgressErase;
using progress::Review;

namespace {

constexpr auto RecordName = "progress.db";

} // namespace

ProgressNavigation::ProgressNavigation(CommonWindows& common)
    : common_(common), keeper_(RecordName, progress::openStore)
{
    shell::listenToAnswers([this](const shell::AnswerRecord& answer) { keeper_.keep(answer); });
    connect(&common_.mainMenu(), &shell::MainMenu::progressRequested, this, [this] {
        common_.mainMenu().hide();
        openProgress();
    });
}

ProgressNavigation::~ProgressNavigation()
{
    shell::listenToAnswers({});
}

void ProgressNavigation::joinProgress(Progress& window)
{
    whenLeft(window, [this] { common_.toMainMenu(); });
    connect(&window, &Progress::keepingSwitched, this, [this](bool on) { keeper_.switchKeeping(on); });
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
    common_.joinDrill(window, [this] { leaveReview(); });
}

void ProgressNavigation::openProgress()
{
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
    keeper_.beginDrill();
    review_->open(keeper_);
}

void ProgressNavigation::leaveReview()
{
    keeper_.endDrill();
    afterReview_();
}

void ProgressNavigation::eraseAnswers()
{
    progress::Store* const store = keeper_.store();
    const auto trouble = store == nullptr ? progress::Trouble::None : store->clear();
    if (const auto sentence = progress::sentenceFor(trouble); !sentence.empty())
        platform::current().showMessage(std::string(sentence));
    progress_->refresh();
}

} // namespace app
