#pragma once

#include "app/feedback_windows.h"
#include "verbdrills/windows/choosers.h"
#include "verbdrills/windows/conjugation.h"
#include "verbs/windows/verb_manager.h"

#include <QObject>

#include <memory>

namespace app {

/// Knows the windows of the verbs and says who shows whom. Each is made when it is first shown.
class VerbNavigation : public QObject {
    Q_OBJECT

public:
    explicit VerbNavigation(FeedbackWindows& feedback);

    void showConjugationChoose();
    void showVerbManager();

Q_SIGNALS:
    /// The last of these windows was left for the main window.
    void left();
    void endRequested();

private:
    verbdrills::ConjugationChoose& conjugationChoose();
    verbdrills::TenseMoodChooser& tenseMoodChooser();
    verbdrills::Conjugation& conjugation();
    verbs::VerbManager& verbManager();

    void takeConjugation(int row);
    void takeTense(int row);
    void leaveConjugation();

    FeedbackWindows& feedback_;
    std::unique_ptr<verbdrills::ConjugationChoose> conjugationChoose_;
    std::unique_ptr<verbdrills::TenseMoodChooser> tenseMoodChooser_;
    std::unique_ptr<verbdrills::Conjugation> conjugation_;
    std::unique_ptr<verbs::VerbManager> verbManager_;
};

} // namespace app
