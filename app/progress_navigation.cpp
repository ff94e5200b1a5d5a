#include "app/progress_navigation.h"

#include "platform/platform.h"
#include "progress/sqlite/store_loader.h"
#include "shell/language_texts.h"
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

// A judgement is painted within a frame of the screen.
constexpr std::chrono::milliseconds UntilPainted{20};

// clang-format off
constexpr shell::LanguageTexts NotDeleted = {
    .english = "The answers were not deleted.",
    .french  = "Les réponses n'ont pas été supprimées.",
    .italian = "Le risposte non sono state cancellate.",
    .german  = "Die Antworten wurden nicht gelöscht.",
    .spanish = "Las respuestas no se borraron.",
    .latin   = "Responsa non deleta sunt.",
};
// clang-format on

} // namespace

ProgressNavigation::ProgressNavigation(CommonWindows& common)
    : common_(common), keeper_(RecordName, progress::openStore)
{
    keeper_.switchKeeping(shell::looks.KeepAnswers);
    pause_.setSingleShot(true);
    pause_.setInterval(UntilPainted);
    connect(&pause_, &QTimer::timeout, this, &ProgressNavigation::keepWaiting);
    shell::listenToAnswers([this](const shell::AnswerRecord& answer) { hear(answer); });
    common_.whenDrillIsLeft([this] { endDrill(); });
    common_.whenDrillIsHidden([this] { closeFile(); });
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
    common_.whenDrillIsHidden({});
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
    waiting_ = progress::Keeper::rowOf(answer);
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

void ProgressNavigation::closeFile()
{
    keepWaiting();
    keeper_.close();
}

void ProgressNavigation::endDrill()
{
    keepWaiting();
    if (std::exchange(drillRuns_, false))
        tellOfDrill();
    keeper_.close();
}

void ProgressNavigation::tellOfDrill()
{
    if (const auto due = keeper_.keeps() ? keeper_.formsDue() : std::nullopt)
        common_.mainMenu().showLastDrill(keeper_.rightAtOnce(), *due);
    else
        common_.mainMenu().forgetLastDrill();
}

void ProgressNavigation::joinProgress(Progress& window)
{
    whenLeft(window, [this] {
        keeper_.close();
        common_.toMainMenu();
    });
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
    if (keeper_.erase() != progress::Trouble::None)
        platform::current().showMessage(std::string(NotDeleted.currentOrDesigned()));
    common_.mainMenu().forgetLastDrill();
    progress_->refresh();
}

} // namespace app
