#include "app/noun_navigation.h"

#include "app/hourglass.h"
#include "nouns/declension_drill.h"
#include "shell/drill.h"
#include "shell/settings.h"

namespace app {

using nouns::Declination;
using nouns::DeclinationChoose;

NounNavigation::NounNavigation(FeedbackWindows& feedback) : feedback_(feedback) {}

DeclinationChoose& NounNavigation::declinationChoose()
{
    if (declinationChoose_)
        return *declinationChoose_;
    declinationChoose_ = std::make_unique<DeclinationChoose>();
    const DeclinationChoose* const window = declinationChoose_.get();
    connect(window, &DeclinationChoose::chosen, this, &NounNavigation::takeDeclension);
    connect(window, &DeclinationChoose::helpRequested, this, &NounNavigation::helpRequested);
    connect(window, &DeclinationChoose::cancelled, this, [this] {
        declinationChoose_->hide();
        Q_EMIT left();
    });
    return *declinationChoose_;
}

Declination& NounNavigation::declination()
{
    if (declination_)
        return *declination_;
    declination_ = std::make_unique<Declination>();
    const Declination* const window = declination_.get();
    connect(window, &Declination::answerJudged, this, [this](bool right) { feedback_.announce(right); });
    connect(window, &Declination::left, this, &NounNavigation::leaveDeclination);
    connect(window, &Declination::helpRequested, this, &NounNavigation::helpRequested);
    return *declination_;
}

void NounNavigation::showDeclinationChoose()
{
    declinationChoose().open();
}

void NounNavigation::takeDeclension(int row)
{
    const Hourglass hourglass;
    if (!nouns::chooseDeclension(row))
        return;
    shell::beginDrill(shell::exercise::Declination);
    declinationChoose_->hide();
    declination().open();
}

void NounNavigation::leaveDeclination()
{
    const Hourglass hourglass;
    shell::leaveDrill();
    feedback_.hide();
    declination_->hide();
    declinationChoose().open();
}

} // namespace app
