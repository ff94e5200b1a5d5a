#pragma once

#include "app/common_windows.h"
#include "verbdrills/windows/probatio.h"
#include "verbdrills/windows/quiz_include.h"

#include <QObject>

namespace app {

/// Knows the windows of the quiz on verbs and says who shows whom.
class VerbQuizNavigation : public QObject {
public:
    explicit VerbQuizNavigation(CommonWindows& common);

private:
    void joinProbatio(verbdrills::Probatio& window);
    void joinQuizInclude(verbdrills::QuizInclude& window);

    void beginQuiz();

    CommonWindows& common_;
    OnDemand<verbdrills::Probatio> probatio_{this, &VerbQuizNavigation::joinProbatio};
    OnDemand<verbdrills::QuizInclude> quizInclude_{this, &VerbQuizNavigation::joinQuizInclude};
};

} // namespace app
