#pragma once

#include "app/feedback_windows.h"
#include "app/key_filter.h"
#include "app/noun_navigation.h"
#include "app/options_navigation.h"
#include "app/quiz_navigation.h"
#include "app/verb_navigation.h"
#include "app/vocabulary_navigation.h"
#include "shell/windows/about.h"
#include "shell/windows/help.h"
#include "shell/windows/main_menu.h"

#include <QObject>

#include <memory>

namespace app {

/// Joins the main window with all others: what its buttons and items open, and how one comes back to it.
class Navigation : public QObject {
    Q_OBJECT

public:
    Navigation();

    /// Loads the program and shows the main window.
    void start();

private:
    void connectMainMenu();
    void connectVerbs();
    void connectNouns();
    void connectQuiz();
    void connectVocabulary();
    void connectOptions();

    void giveWay();
    void showMainMenu();
    void showHelp();
    void showAbout();

    KeyFilter keyFilter_;
    shell::MainMenu mainMenu_;
    FeedbackWindows feedback_;
    VerbNavigation verbs_{feedback_};
    NounNavigation nouns_{feedback_};
    QuizNavigation quiz_{feedback_};
    VocabularyNavigation vocabulary_{feedback_};
    OptionsNavigation options_;
    std::unique_ptr<shell::About> about_;
    std::unique_ptr<shell::Help> help_;
};

} // namespace app
