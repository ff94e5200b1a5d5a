#pragma once

#include "app/common_windows.h"
#include "vocabulary/windows/file_handler.h"
#include "vocabulary/windows/vcab_divide.h"
#include "vocabulary/windows/vcab_loader.h"
#include "vocabulary/windows/vcab_manager.h"
#include "vocabulary/windows/vcab_replace.h"
#include "vocabulary/windows/vcab_warning.h"
#include "vocabulary/windows/vcabtester.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <string_view>

namespace app {

/// Knows the windows of the vocabulary and says who shows whom.
class VocabularyNavigation : public QObject {
public:
    explicit VocabularyNavigation(CommonWindows& common);

private:
    void joinTester(vocabulary::Vcabtester& window);
    void joinLoader(vocabulary::VcabLoader& window);
    void joinManager(vocabulary::VcabManager& window);
    void joinFileHandler(vocabulary::FileHandler& window);
    void joinWarning(vocabulary::VcabWarning& window);
    void joinDivide(vocabulary::VcabDivide& window);
    void joinReplace(vocabulary::VcabReplace& window);

    void beginTest();
    void showManager();
    void putTesterAside();
    void returnToTester();

    /// Leaves the editor, where changes wait to be saved once the learner has given them up.
    void leaveManager();

    /// Warns of pending changes; one of the steps comes next, or none.
    void warn(const Step& toSave, const Step& toDiscard);

    /// Loads a list by the window where it was chosen.
    using ListStep = std::function<void(const std::filesystem::path&)>;

    /// Offers to divide a file; its first list is then loaded.
    void offerDivision(const std::filesystem::path& file, const vocabulary::LoadFault& fault,
                       const ListStep& toLoad);

    /// Lets the learner choose a file, for one of the values of `FileMode`.
    void chooseFile(std::string_view mode);

    CommonWindows& common_;
    OnDemand<vocabulary::Vcabtester> tester_{this, &VocabularyNavigation::joinTester};
    OnDemand<vocabulary::VcabLoader> loader_{this, &VocabularyNavigation::joinLoader};
    OnDemand<vocabulary::VcabManager> manager_{this, &VocabularyNavigation::joinManager};
    OnDemand<vocabulary::FileHandler> fileHandler_{this, &VocabularyNavigation::joinFileHandler};
    OnDemand<vocabulary::VcabWarning> warning_{this, &VocabularyNavigation::joinWarning};
    OnDemand<vocabulary::VcabDivide> divide_{this, &VocabularyNavigation::joinDivide};
    OnDemand<vocabulary::VcabReplace> replace_{this, &VocabularyNavigation::joinReplace};

    /// A test was put aside for another window and goes on when that is left.
    bool testWaits_ = false;

    /// The editor was left with changes to be saved first, and is left once they are.
    bool leavesOnceSaved_ = false;

    /// What the warning leads to.
    Step toSave_;
    Step toDiscard_;

    /// What a division leads to.
    ListStep toLoad_;
};

} // namespace app
