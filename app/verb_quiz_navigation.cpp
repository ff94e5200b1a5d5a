#include "app/verb_quiz_navigation.h"

#include "shell/drill.h"
#include "shell/settings.h"

namespace app {

using verbdrills::Probatio;
using verbdrills::QuizInclude;

VerbQuizNavigation::VerbQuizNavigation(CommonWindows& common) : common_(common)
{
    connect(&common_.mainMenu(), &shell::MainMenu::quizRequested, this, &VerbQuizNavigation::beginQuiz);
}

void VerbQuizNavigation::joinProbatio(Probatio& window)
{
    common_.joinDrill(window, [this] { common_.toMainMenu(); });
    connect(&window, &Probatio::optionsRequested, this, [this, &window] {
        common_.leaveDrill(window);
        quizInclude_->open();
    });
    connect(&window, &Probatio::nothingToAsk, this, [this, &window] {
        common_.leaveDrill(window);
        quizInclude_->openAsNothingCanBeAsked();
    });
}

void VerbQuizNavigation::joinQuizInclude(QuizInclude& window)
{
    connect(&window, &QuizInclude::chosen, this, [this, &window] {
        window.hide();
        probatio_->resume();
    });
    whenLeft(window, [this] { probatio_->comeBack(); });
}

void VerbQuizNavigation::beginQuiz()
{
    const Hourglass hourglass;
    common_.mainMenu().hide();
    shell::beginDrill(shell::exercise::Quiz);
    probatio_->open();
}

} // namespace app
