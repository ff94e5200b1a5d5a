#pragma once

#include "app/feedback_windows.h"
#include "nouns/windows/declination.h"
#include "nouns/windows/declination_choose.h"

#include <QObject>

#include <memory>

namespace app {

/// Knows the windows of the nouns and pronouns and says who shows whom. Each is made when it is first shown.
class NounNavigation : public QObject {
    Q_OBJECT

public:
    explicit NounNavigation(FeedbackWindows& feedback);

    void showDeclinationChoose();

Q_SIGNALS:
    /// The last of these windows was left for the main window.
    void left();
    void helpRequested();

private:
    nouns::DeclinationChoose& declinationChoose();
    nouns::Declination& declination();

    void takeDeclension(int row);
    void leaveDeclination();

    FeedbackWindows& feedback_;
    std::unique_ptr<nouns::DeclinationChoose> declinationChoose_;
    std::unique_ptr<nouns::Declination> declination_;
};

} // namespace app
