#include "app/vocabulary_navigation.h"

#include "vocabulary/kvtml/kvtml_list.h"
#include "vocabulary/vocabulary_edits.h"

#include <utility>

namespace app {

using shell::MainMenu;
using vocabulary::FileHandler;
using vocabulary::LoadFault;
using vocabulary::VcabDivide;
using vocabulary::VcabLoader;
using vocabulary::VcabManager;
using vocabulary::VcabReplace;
using vocabulary::Vcabtester;
using vocabulary::VcabWarning;

using Path = std::filesystem::path;
namespace file_mode = vocabulary::file_mode;

VocabularyNavigation::VocabularyNavigation(CommonWindows& common) : common_(common)
{
    vocabulary::useKvtmlReader(&vocabulary::readKvtml);
    connect(&common_.mainMenu(), &MainMenu::vocabularyRequested, this, &VocabularyNavigation::beginTest);
    connect(&common_.mainMenu(), &MainMenu::vocabularyManagerRequested, this,
            &VocabularyNavigation::showManager);
}

void VocabularyNavigation::joinTester(Vcabtester& window)
{
    common_.joinDrill(window, [this] { common_.toMainMenu(); });
    connect(&window, &Vcabtester::listRequested, this, [this] {
        putTesterAside();
        loader_->open();
    });
    connect(&window, &Vcabtester::editorRequested, this, [this] {
        putTesterAside();
        manager_->open();
    });
}

void VocabularyNavigation::joinLoader(VcabLoader& window)
{
    whenLeft(window, [this] { returnToTester(); });
    connect(&window, &VcabLoader::divisionRequested, this,
            [this, &window](const Path& file, const LoadFault& fault) {
                offerDivision(file, fault, [&window](const Path& list) { window.load(list); });
            });
}

void VocabularyNavigation::joinManager(VcabManager& window)
{
    connect(&window, &VcabManager::saveRequested, this, [this] { chooseFile(file_mode::Save); });
    connect(&window, &VcabManager::loadRequested, this, [this] { chooseFile(file_mode::Load); });
    connect(&window, &VcabManager::exitRequested, this, &VocabularyNavigation::leaveManager);
}

void VocabularyNavigation::joinFileHandler(FileHandler& window)
{
    connect(&window, &FileHandler::loaded, this, [this, &window] {
        window.hide();
        manager_->open();
    });
    connect(&window, &FileHandler::warningRequested, this, [this, &window] {
        warn([&window] { window.saveBeforeLoad(); }, [&window] { window.replaceList(); });
    });
    connect(&window, &FileHandler::divisionRequested, this,
            [this, &window](const Path& file, const LoadFault& fault) {
                offerDivision(file, fault, [&window](const Path& list) { window.loadNew(list); });
            });
    connect(&window, &FileHandler::replacementRequested, this,
            [this](const Path& file) { replace_->open(file); });
    whenLeft(window, [this] {
        if (std::exchange(leavesOnceSaved_, false) && !vocabulary::changesArePending())
            returnToTester();
        else
            manager_->comeBack();
    });
}

void VocabularyNavigation::joinWarning(VcabWarning& window)
{
    hideWhenLeft(window);
    connect(&window, &VcabWarning::discardRequested, &window, &VcabWarning::hide);
    connect(&window, &VcabWarning::discardRequested, this, [this] { toDiscard_(); });
    connect(&window, &VcabWarning::saveRequested, &window, &VcabWarning::hide);
    connect(&window, &VcabWarning::saveRequested, this, [this] { toSave_(); });
}

void VocabularyNavigation::joinDivide(VcabDivide& window)
{
    hideWhenLeft(window);
    connect(&window, &VcabDivide::divided, this, [this](const Path& list) { toLoad_(list); });
}

void VocabularyNavigation::joinReplace(VcabReplace& window)
{
    hideWhenLeft(window);
    connect(&window, &VcabReplace::replacementAllowed, &window, &VcabReplace::hide);
    connect(&window, &VcabReplace::replacementAllowed, this, [this] { fileHandler_->replaceFile(); });
}

void VocabularyNavigation::beginTest()
{
    const Hourglass hourglass;
    common_.mainMenu().hide();
    tester_->open();
}

void VocabularyNavigation::showManager()
{
    common_.mainMenu().hide();
    vocabulary::beginNewList();
    manager_->open();
}

void VocabularyNavigation::putTesterAside()
{
    common_.leaveDrill(*tester_);
    testWaits_ = true;
}

void VocabularyNavigation::returnToTester()
{
    const Hourglass hourglass;
    manager_.hide();
    if (testWaits_)
        tester_->comeBack();
    else
        tester_->open();
    testWaits_ = false;
}

void VocabularyNavigation::leaveManager()
{
    if (!vocabulary::changesArePending()) {
        returnToTester();
        return;
    }
    const auto discard = [this] {
        vocabulary::discardChanges();
        returnToTester();
    };
    const auto save = [this] {
        leavesOnceSaved_ = true;
        chooseFile(file_mode::Save);
    };
    warn(save, discard);
}

void VocabularyNavigation::warn(const Step& toSave, const Step& toDiscard)
{
    toSave_ = toSave;
    toDiscard_ = toDiscard;
    warning_->open();
}

void VocabularyNavigation::offerDivision(const Path& file, const LoadFault& fault, const ListStep& toLoad)
{
    toLoad_ = toLoad;
    divide_->open(file, fault);
}

void VocabularyNavigation::chooseFile(std::string_view mode)
{
    manager_->hide();
    fileHandler_->open(mode);
}

} // namespace app
