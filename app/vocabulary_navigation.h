#pragma once

#include "app/common_windows.h"
#include "vocabulary/windows/file_handler.h"
#include "vocabulary/windows/vcab_loader.h"
#include "vocabulary/windows/vcab_manager.h"
#include "vocabulary/windows/vcab_warning.h"
#include "vocabulary/windows/vcabtester.h"

#include <QObject>

#include <string_view>

namespace app {

/// Knows the windows of the vocabulary and says who shows whom.
class VocabularyNavigation : public QObject {
public:
    explicit VocabularyNavigation(CommonWindows& common);

private:
    void beginTest();
    void showManager();
    void putTesterAside();
    void returnToTester();

    /// Takes the step, where changes wait to be saved once the learner has given them up.
    void goOnWithoutPendingChanges(const Step& step);

    /// Lets the learner choose a file, for one of the values of `FileMode`.
    void chooseFile(std::string_view mode);

    CommonWindows& common_;
    OnDemand<vocabulary::Vcabtester> tester_;
    OnDemand<vocabulary::VcabLoader> loader_;
    OnDemand<vocabulary::VcabManager> manager_;
    OnDemand<vocabulary::FileHandler> fileHandler_;
    OnDemand<vocabulary::VcabWarning> warning_;

    /// A test was put aside for another window and goes on when that is left.
    bool testWaits_ = false;

    /// Where the editor goes once its changes need not be saved.
    Step afterWarning_;
};

} // namespace app
