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
    void beginToChoose();
    void takeConjugation(int row);
    void takeTense(int row);
    void chooseAgain();

    CommonWindows& common_;
    OnDemand<verbdrills::ConjugationChoose> conjugationChoose_;
    OnDemand<verbdrills::TenseMoodChooser> tenseMoodChooser_;
    OnDemand<verbdrills::Conjugation> conjugation_;
    OnDemand<verbs::VerbManager> verbManager_;
};

} // namespace app
