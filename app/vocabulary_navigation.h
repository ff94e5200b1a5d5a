#pragma once

#include "app/feedback_windows.h"
#include "vocabulary/windows/file_handler.h"
#include "vocabulary/windows/vcab_loader.h"
#include "vocabulary/windows/vcab_manager.h"
#include "vocabulary/windows/vcab_warning.h"
#include "vocabulary/windows/vcabtester.h"

#include <QObject>

#include <memory>

namespace app {

/// Knows the windows of the vocabulary and says who shows whom. Each is made when it is first shown.
class VocabularyNavigation : public QObject {
    Q_OBJECT

public:
    explicit VocabularyNavigation(FeedbackWindows& feedback);

    /// Shows the tester with the default list.
    void showTester();

    /// Shows the editor with a new list, or with the one in memory where that has changes that are not saved.
    void showManager();

Q_SIGNALS:
    /// The last of these windows was left for the main window.
    void left();

private:
    using Step = void (VocabularyNavigation::*)();

    vocabulary::Vcabtester& tester();
    vocabulary::VcabLoader& loader();
    vocabulary::VcabManager& manager();
    vocabulary::FileHandler& fileHandler();
    vocabulary::VcabWarning& warning();

    void leaveTester();
    void putTesterAside();
    void showLoader();
    void editTestedList();
    void goOnWithoutPendingChanges(Step step);
    void goOnWithoutSaving();
    void chooseFileToLoad();
    void chooseFileToSave();
    void returnToTester();

    FeedbackWindows& feedback_;
    std::unique_ptr<vocabulary::Vcabtester> tester_;
    std::unique_ptr<vocabulary::VcabLoader> loader_;
    std::unique_ptr<vocabulary::VcabManager> manager_;
    std::unique_ptr<vocabulary::FileHandler> fileHandler_;
    std::unique_ptr<vocabulary::VcabWarning> warning_;

    /// A test was put aside for another window and goes on when that is left.
    bool testWaits_ = false;

    /// Where the editor goes once its changes need not be saved.
    Step afterWarning_ = nullptr;
};

} // namespace app
