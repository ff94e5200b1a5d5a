#include "app/quiz_navigation.h"

#include "app/hourglass.h"
#include "shell/drill.h"
#include "shell/settings.h"

namespace app {

using verbdrills::Probatio;
using verbdrills::QuizInclude;

QuizNavigation::QuizNavigation(FeedbackWindows& feedback) : feedback_(feedback) {}

Probatio& QuizNavigation::probatio()
{
    if (probatio_)
        return *probatio_;
    probatio_ = std::make_unique<Probatio>();
    const Probatio* const window = probatio_.get();
    connect(window, &Probatio::answerJudged, this, [this](bool right) { feedback_.announce(right); });
    connect(window, &Probatio::optionsRequested, this, [this] {
        leaveProbatio();
        quizInclude().open();
    });
    connect(window, &Probatio::nothingToAsk, this, [this] {
        leaveProbatio();
        quizInclude().openAsNothingCanBeAsked();
    });
    connect(window, &Probatio::left, this, [this] {
        const Hourglass hourglass;
        leaveProbatio();
        Q_EMIT left();
    });
    return *probatio_;
}

QuizInclude& QuizNavigation::quizInclude()
{
    if (quizInclude_)
        return *quizInclude_;
    quizInclude_ = std::make_unique<QuizInclude>();
    const QuizInclude* const window = quizInclude_.get();
    connect(window, &QuizInclude::chosen, this, [this] {
        quizInclude_->hide();
        probatio().resume();
    });
    connect(window, &QuizInclude::left, this, [this] {
        quizInclude_->hide();
        probatio().comeBack();
    });
    return *quizInclude_;
}

void QuizNavigation::showQuiz()
{
    const Hourglass hourglass;
    shell::beginDrill(shell::exercise::Quiz);
    probatio().open();
}

void QuizNavigation::leaveProbatio()
{
    shell::leaveDrill();
    feedback_.hide();
    probatio_->hide();
}

} // namespace app
