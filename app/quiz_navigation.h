#pragma once

#include "app/common_windows.h"
#include "verbdrills/windows/probatio.h"
#include "verbdrills/windows/quiz_include.h"

#include <QObject>

namespace app {

/// Knows the windows of the verb quiz and says who shows whom.
class QuizNavigation : public QObject {
public:
    explicit QuizNavigation(CommonWindows& common);

private:
    void beginQuiz();

    CommonWindows& common_;
    OnDemand<verbdrills::Probatio> probatio_;
    OnDemand<verbdrills::QuizInclude> quizInclude_;
};

} // namespace app
