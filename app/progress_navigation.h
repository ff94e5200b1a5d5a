#pragma once

#include "app/common_windows.h"
#include "progress/keeper.h"
#include "progress/windows/progress.h"
#include "progress/windows/progress_erase.h"
#include "progress/windows/review.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace app {

/// Joins the record of answers with the drills that give them, and knows the windows that show it and ask
/// from it.
///
/// An answer is told as soon as it is judged, and has that moment. It is kept in the pause that follows, once
/// the judgement is on the screen; at the latest when the next one is told, when the drill is left, or when
/// the program ends. So no judgement waits for the file, and a kill loses no answer but the last.
///
/// A drill begins with its first answer and ends when it is left: a test or a quiz that is put aside for
/// another window goes on. Then the main window says how many of its answers were right at once, and how many
/// forms a review would ask now; after one that was left without an answer it says what it said before.
class ProgressNavigation : public QObject {
public:
    /// Keeps answers where `looks` says so.
    explicit ProgressNavigation(CommonWindows& common);
    ~ProgressNavigation() override;

    /// Keeps answers from now on, or no longer, and remembers that in the file of `looks`.
    void switchKeeping(bool on);

private:
    void hear(const shell::AnswerRecord& answer);
    void keepWaiting();
    void closeFile();
    void endDrill();
    void tellOfDrill();

    void joinProgress(progress::Progress& window);
    void joinErase(progress::ProgressErase& window);
    void joinReview(progress::Review& window);

    void openProgress();
    void openReview();
    void openReviewFromProgress();
    void beginReview();
    void eraseAnswers();

    CommonWindows& common_;
    progress::Keeper keeper_;
    QTimer pause_;
    std::optional<progress::Row> waiting_;
    bool drillRuns_ = false;
    OnDemand<progress::Progress> progress_{this, &ProgressNavigation::joinProgress};
    OnDemand<progress::ProgressErase> erase_{this, &ProgressNavigation::joinErase};
    OnDemand<progress::Review> review_{this, &ProgressNavigation::joinReview};

    /// Where a review leads back to.
    Step afterReview_;
};

} // namespace app
