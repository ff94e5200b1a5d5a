#include "app/noun_navigation.h"

#include "app/hourglass.h"
#include "nouns/declension_drill.h"
#include "nouns/pronoun_drill.h"
#include "shell/drill.h"
#include "shell/settings.h"

namespace app {

using nouns::Declination;
using nouns::DeclinationChoose;
using nouns::NounHandler;
using nouns::NounQuiz;
using nouns::PronounChooser;
using nouns::PronounSingular;

NounNavigation::NounNavigation(FeedbackWindows& feedback) : feedback_(feedback) {}

DeclinationChoose& NounNavigation::declinationChoose()
{
    if (declinationChoose_)
        return *declinationChoose_;
    declinationChoose_ = std::make_unique<DeclinationChoose>();
    const DeclinationChoose* const window = declinationChoose_.get();
    connect(window, &DeclinationChoose::chosen, this, &NounNavigation::takeDeclension);
    connect(window, &DeclinationChoose::left, this, [this] {
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
    return *declination_;
}

PronounChooser& NounNavigation::pronounChooser()
{
    if (pronounChooser_)
        return *pronounChooser_;
    pronounChooser_ = std::make_unique<PronounChooser>();
    const PronounChooser* const window = pronounChooser_.get();
    connect(window, &PronounChooser::chosen, this, &NounNavigation::takePronouns);
    connect(window, &PronounChooser::left, this, [this] {
        pronounChooser_->hide();
        Q_EMIT left();
    });
    return *pronounChooser_;
}

PronounSingular& NounNavigation::pronounSingular()
{
    if (pronounSingular_)
        return *pronounSingular_;
    pronounSingular_ = std::make_unique<PronounSingular>();
    const PronounSingular* const window = pronounSingular_.get();
    connect(window, &PronounSingular::answerJudged, this, [this](bool right) { feedback_.announce(right); });
    connect(window, &PronounSingular::left, this, &NounNavigation::leavePronouns);
    return *pronounSingular_;
}

NounQuiz& NounNavigation::nounQuiz()
{
    if (nounQuiz_)
        return *nounQuiz_;
    nounQuiz_ = std::make_unique<NounQuiz>();
    const NounQuiz* const window = nounQuiz_.get();
    connect(window, &NounQuiz::left, this, &NounNavigation::leaveNounQuiz);
    connect(window, &NounQuiz::optionsRequested, this, &NounNavigation::delayRequested);
    return *nounQuiz_;
}

NounHandler& NounNavigation::nounHandler()
{
    if (nounHandler_)
        return *nounHandler_;
    nounHandler_ = std::make_unique<NounHandler>();
    const NounHandler* const window = nounHandler_.get();
    connect(window, &NounHandler::left, this, [this] {
        nounHandler_->hide();
        Q_EMIT left();
    });
    return *nounHandler_;
}

void NounNavigation::showDeclinationChoose()
{
    declinationChoose().open();
}

void NounNavigation::showPronounChooser()
{
    pronounChooser().open();
}

void NounNavigation::showNounQuiz()
{
    nounQuiz().open();
}

void NounNavigation::showNounManager()
{
    nounHandler().open();
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

void NounNavigation::takePronouns(int row)
{
    const Hourglass hourglass;
    if (!nouns::choosePronouns(row))
        return;
    shell::beginDrill(shell::exercise::Pronouns);
    pronounChooser_->hide();
    pronounSingular().open();
}

void NounNavigation::leavePronouns()
{
    const Hourglass hourglass;
    shell::leaveDrill();
    feedback_.hide();
    pronounSingular_->hide();
    pronounChooser().open();
}

void NounNavigation::leaveNounQuiz()
{
    shell::leaveDrill();
    nounQuiz_->hide();
    Q_EMIT left();
}

} // namespace app
