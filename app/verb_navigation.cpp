#include "app/verb_navigation.h"

#include "app/hourglass.h"
#include "shell/drill.h"
#include "shell/settings.h"
#include "verbdrills/conjugation_choice.h"
#include "verbs/verb_tables.h"

namespace app {

using verbdrills::Conjugation;
using verbdrills::ConjugationChoose;
using verbdrills::TenseMoodChooser;
using verbs::VerbManager;

VerbNavigation::VerbNavigation(FeedbackWindows& feedback) : feedback_(feedback) {}

ConjugationChoose& VerbNavigation::conjugationChoose()
{
    if (conjugationChoose_)
        return *conjugationChoose_;
    conjugationChoose_ = std::make_unique<ConjugationChoose>();
    const ConjugationChoose* const window = conjugationChoose_.get();
    connect(window, &ConjugationChoose::chosen, this, &VerbNavigation::takeConjugation);
    connect(window, &ConjugationChoose::left, this, [this] {
        const Hourglass hourglass;
        conjugationChoose_->hide();
        Q_EMIT left();
    });
    return *conjugationChoose_;
}

TenseMoodChooser& VerbNavigation::tenseMoodChooser()
{
    if (tenseMoodChooser_)
        return *tenseMoodChooser_;
    tenseMoodChooser_ = std::make_unique<TenseMoodChooser>();
    const TenseMoodChooser* const window = tenseMoodChooser_.get();
    connect(window, &TenseMoodChooser::chosen, this, &VerbNavigation::takeTense);
    connect(window, &TenseMoodChooser::left, this, [this] {
        tenseMoodChooser_->hide();
        conjugationChoose().open();
    });
    return *tenseMoodChooser_;
}

Conjugation& VerbNavigation::conjugation()
{
    if (conjugation_)
        return *conjugation_;
    conjugation_ = std::make_unique<Conjugation>();
    const Conjugation* const window = conjugation_.get();
    connect(window, &Conjugation::answerJudged, this, [this](bool right) { feedback_.announce(right); });
    connect(window, &Conjugation::left, this, &VerbNavigation::leaveConjugation);
    return *conjugation_;
}

VerbManager& VerbNavigation::verbManager()
{
    if (verbManager_)
        return *verbManager_;
    verbManager_ = std::make_unique<VerbManager>();
    const VerbManager* const window = verbManager_.get();
    connect(window, &VerbManager::endRequested, this, &VerbNavigation::endRequested);
    connect(window, &VerbManager::left, this, [this] {
        verbManager_->hide();
        Q_EMIT left();
    });
    return *verbManager_;
}

void VerbNavigation::showConjugationChoose()
{
    conjugationChoose().open();
}

void VerbNavigation::showVerbManager()
{
    verbManager().open();
}

void VerbNavigation::takeConjugation(int row)
{
    const Hourglass hourglass;
    switch (verbdrills::chooseConjugation(row)) {
    case verbdrills::ConjugationChoice::None:
        return;
    case verbdrills::ConjugationChoice::SingleTense:
        conjugationChoose_->hide();
        tenseMoodChooser().open();
        return;
    case verbdrills::ConjugationChoice::Paradigm:
        break;
    }
    shell::beginDrill(shell::exercise::Conjugation);
    verbdrills::generateParadigms();
    verbdrills::beginRound();
    conjugationChoose_->hide();
    conjugation().open();
}

void VerbNavigation::takeTense(int row)
{
    const Hourglass hourglass;
    if (!verbdrills::chooseTense(row))
        return;
    shell::beginDrill(shell::exercise::Conjugation);
    verbdrills::generateParadigms();
    tenseMoodChooser_->hide();
    conjugation().open();
}

void VerbNavigation::leaveConjugation()
{
    const Hourglass hourglass;
    shell::leaveDrill();
    feedback_.hide();
    conjugation_->hide();
    if (verbs::currentParadigm.SingleTenseMode == 1)
        tenseMoodChooser().open();
    else
        conjugationChoose().open();
}

} // namespace app
