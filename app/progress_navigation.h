#pragma once

#include "app/common_windows.h"
#include "progress/keeper.h"
#include "progress/windows/progress.h"
#include "progress/windows/progress_erase.h"
#include "progress/windows/review.h"

#include <QObject>

namespace app {

/// Joins the record of answers with the drills that give them, and knows the windows that show it and ask
/// from it.
class ProgressNavigation : public QObject {
public:
    explicit ProgressNavigation(CommonWindows& common);
    ~ProgressNavigation() override;

    /// Opens the review from the main window, and comes back to that.
    void openReview();

private:
    void joinProgress(progress::Progress& window);
    void joinErase(progress::ProgressErase& window);
    void joinReview(progress::Review& window);

    void openProgress();
    void openReviewFromProgress();
    void beginReview();
    void leaveReview();
    void eraseAnswers();

    CommonWindows& common_;
    progress::Keeper keeper_;
    OnDemand<progress::Progress> progress_{this, &ProgressNavigation::joinProgress};
    OnDemand<progress::ProgressErase> erase_{this, &ProgressNavigation::joinErase};
    OnDemand<progress::Review> review_{this, &ProgressNavigation::joinReview};

    /// Where a review leads back to.
    Step afterReview_;
};

} // namespace app
