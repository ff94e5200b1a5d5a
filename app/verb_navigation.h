#pragma once

#include "app/common_windows.h"
#include "verbdrills/windows/choosers.h"
#include "verbdrills/windows/conjugation.h"
#include "verbs/windows/verb_manager.h"

#include <QObject>

namespace app {

/// Knows the windows of the verbs and says who shows whom.
class VerbNavigation : public QObject {
public:
    explicit VerbNavigation(CommonWindows& common);

private:
    void joinConjugationChoose(verbdrills::ConjugationChoose& window);
    void joinTenseMoodChooser(verbdrills::TenseMoodChooser& window);
    void joinConjugation(verbdrills::Conjugation& window);
    void joinVerbManager(verbs::VerbManager& window);

    void beginToChoose();
    void takeConjugation(int row);
    void takeTense(int row);
    void chooseAgain();

    CommonWindows& common_;
    OnDemand<verbdrills::ConjugationChoose> conjugationChoose_{this, &VerbNavigation::joinConjugationChoose};
    OnDemand<verbdrills::TenseMoodChooser> tenseMoodChooser_{this, &VerbNavigation::joinTenseMoodChooser};
    OnDemand<verbdrills::Conjugation> conjugation_{this, &VerbNavigation::joinConjugation};
    OnDemand<verbs::VerbManager> verbManager_{this, &VerbNavigation::joinVerbManager};
};

} // namespace app
