#pragma once

#include "app/feedback_windows.h"
#include "nouns/windows/choosers.h"
#include "nouns/windows/declination.h"
#include "nouns/windows/noun_handler.h"
#include "nouns/windows/noun_quiz.h"
#include "nouns/windows/pronoun_singular.h"

#include <QObject>

#include <memory>

namespace app {

/// Knows the windows of the nouns and pronouns and says who shows whom. Each is made when it is first shown.
class NounNavigation : public QObject {
    Q_OBJECT

public:
    explicit NounNavigation(FeedbackWindows& feedback);

    void showDeclinationChoose();
    void showPronounChooser();
    void showNounQuiz();
    void showNounManager();

Q_SIGNALS:
    /// The last of these windows was left for the main window.
    void left();

    /// The length of the pause is to be set.
    void delayRequested();

private:
    nouns::DeclinationChoose& declinationChoose();
    nouns::Declination& declination();
    nouns::PronounChooser& pronounChooser();
    nouns::PronounSingular& pronounSingular();
    nouns::NounQuiz& nounQuiz();
    nouns::NounHandler& nounHandler();

    void takeDeclension(int row);
    void leaveDeclination();
    void takePronouns(int row);
    void leavePronouns();
    void leaveNounQuiz();

    FeedbackWindows& feedback_;
    std::unique_ptr<nouns::DeclinationChoose> declinationChoose_;
    std::unique_ptr<nouns::Declination> declination_;
    std::unique_ptr<nouns::PronounChooser> pronounChooser_;
    std::unique_ptr<nouns::PronounSingular> pronounSingular_;
    std::unique_ptr<nouns::NounQuiz> nounQuiz_;
    std::unique_ptr<nouns::NounHandler> nounHandler_;
};

} // namespace app
