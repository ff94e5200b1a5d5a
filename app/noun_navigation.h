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
    void beginToChooseNouns();
    void takeDeclension(int row);
    void beginToChoosePronouns();
    void takePronouns(int row);

    CommonWindows& common_;
    OnDemand<nouns::DeclinationChoose> declinationChoose_;
    OnDemand<nouns::Declination> declination_;
    OnDemand<nouns::PronounChooser> pronounChooser_;
    OnDemand<nouns::PronounSingular> pronounSingular_;
    OnDemand<nouns::NounQuiz> nounQuiz_;
    OnDemand<nouns::NounHandler> nounHandler_;
};

} // namespace app
