#pragma once

#include "app/feedback_windows.h"
#include "verbdrills/windows/probatio.h"
#include "verbdrills/windows/quiz_include.h"

#include <QObject>

#include <memory>

namespace app {

/// Knows the windows of the verb quiz and says who shows whom. Each is made when it is first shown.
class QuizNavigation : public QObject {
    Q_OBJECT

public:
    explicit QuizNavigation(FeedbackWindows& feedback);

    void showQuiz();

Q_SIGNALS:
    /// The quiz was left for the main window.
    void left();

private:
    verbdrills::Probatio& probatio();
    verbdrills::QuizInclude& quizInclude();

    void leaveProbatio();

    FeedbackWindows& feedback_;
    std::unique_ptr<verbdrills::Probatio> probatio_;
    std::unique_ptr<verbdrills::QuizInclude> quizInclude_;
};

} // namespace app
