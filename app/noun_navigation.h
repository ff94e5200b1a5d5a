#pragma once

#include "app/common_windows.h"
#include "nouns/windows/choosers.h"
#include "nouns/windows/declination.h"
#include "nouns/windows/noun_handler.h"
#include "nouns/windows/noun_quiz.h"
#include "nouns/windows/pronoun_singular.h"

#include <QObject>

namespace app {

/// Knows the windows of the nouns and pronouns and says who shows whom.
class NounNavigation : public QObject {
public:
    explicit NounNavigation(CommonWindows& common);

private:
    void joinDeclinationChoose(nouns::DeclinationChoose& window);
    void joinDeclination(nouns::Declination& window);
    void joinPronounChooser(nouns::PronounChooser& window);
    void joinPronounSingular(nouns::PronounSingular& window);
    void joinNounQuiz(nouns::NounQuiz& window);
    void joinNounHandler(nouns::NounHandler& window);

    void beginToChooseNouns();
    void takeDeclension(int row);
    void beginToChoosePronouns();
    void takePronouns(int row);

    CommonWindows& common_;
    OnDemand<nouns::DeclinationChoose> declinationChoose_{this, &NounNavigation::joinDeclinationChoose};
    OnDemand<nouns::Declination> declination_{this, &NounNavigation::joinDeclination};
    OnDemand<nouns::PronounChooser> pronounChooser_{this, &NounNavigation::joinPronounChooser};
    OnDemand<nouns::PronounSingular> pronounSingular_{this, &NounNavigation::joinPronounSingular};
    OnDemand<nouns::NounQuiz> nounQuiz_{this, &NounNavigation::joinNounQuiz};
    OnDemand<nouns::NounHandler> nounHandler_{this, &NounNavigation::joinNounHandler};
};

} // namespace app
