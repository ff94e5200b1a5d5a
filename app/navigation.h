#pragma once

#include "app/common_windows.h"
#include "app/key_filter.h"
#include "app/noun_navigation.h"
#include "app/progress_navigation.h"
#include "app/qt_texts.h"
#include "app/tables_navigation.h"
#include "app/text_size_keys.h"
#include "app/verb_navigation.h"
#include "app/verb_quiz_navigation.h"
#include "app/vocabulary_navigation.h"
#include "shell/windows/about.h"
#include "shell/windows/frm_options.h"
#include "shell/windows/help.h"

#include <QObject>

namespace app {

/// Joins the main window with all others: what its buttons and items open, and how one comes back to it.
class Navigation : public QObject {
public:
    Navigation();

    /// Loads the program and shows the main window.
    void start();

private:
    void showHelp(const shell::Window& asking);

    KeyFilter keyFilter_;
    TextSizeKeys textSizeKeys_;
    ContextMenuTexts contextMenuTexts_;
    CommonWindows common_;
    VerbNavigation verbs_{common_};
    NounNavigation nouns_{common_};
    VerbQuizNavigation verbQuiz_{common_};
    VocabularyNavigation vocabulary_{common_};
    TablesNavigation tables_{common_.mainMenu()};
    ProgressNavigation progress_{common_};
    OnDemand<shell::FrmOptions> options_{&hideWhenLeft};
    OnDemand<shell::About> about_{&hideWhenLeft};
    OnDemand<shell::Help> help_{&hideWhenLeft};
};

} // namespace app
