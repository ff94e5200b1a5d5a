#include "app/vocabulary_navigation.h"

#include "vocabulary/vocabulary_edits.h"

namespace app {

using shell::MainMenu;
using vocabulary::FileHandler;
using vocabulary::VcabManager;
using vocabulary::Vcabtester;
using vocabulary::VcabWarning;

namespace file_mode = vocabulary::file_mode;

VocabularyNavigation::VocabularyNavigation(CommonWindows& common)
    : common_(common), tester_([this](Vcabtester& window) {
          common_.joinDrill(window, common_.toMainMenu);
          connect(&window, &Vcabtester::listRequested, this, [this] {
              putTesterAside();
              loader_->open();
          });
          connect(&window, &Vcabtester::editorRequested, this, [this] {
              putTesterAside();
              manager_->open();
          });
      }),
      loader_(
          [this](vocabulary::VcabLoader& window) { whenLeft(window, [this] { returnToTester(); }); }),
      manager_([this](VcabManager& window) {
          connect(&window, &VcabManager::saveRequested, this, [this] { chooseFile(file_mode::Save); });
          connect(&window, &VcabManager::loadRequested, this,
                  [this] { goOnWithoutPendingChanges([this] { chooseFile(file_mode::Load); }); });
          connect(&window, &VcabManager::exitRequested, this,
                  [this] { goOnWithoutPendingChanges([this] { returnToTester(); }); });
      }),
      fileHandler_([this](FileHandler& window) {
          connect(&window, &FileHandler::loaded, this, [this, &window] {
              window.hide();
              manager_->open();
          });
          whenLeft(window, [this] { manager_->comeBack(); });
      }),
      warning_([this](VcabWarning& window) {
          hideWhenLeft(window);
          connect(&window, &VcabWarning::discardRequested, &window, &VcabWarning::hide);
          connect(&window, &VcabWarning::discardRequested, this, [this] { afterWarning_(); });
          connect(&window, &VcabWarning::saveRequested, &window, &VcabWarning::hide);
          connect(&window, &VcabWarning::saveRequested, this, [this] { chooseFile(file_mode::Save); });
      })
{
    connect(&common_.mainMenu, &MainMenu::vocabularyRequested, this, &VocabularyNavigation::beginTest);
    connect(&common_.mainMenu, &MainMenu::vocabularyManagerRequested, this,
            &VocabularyNavigation::showManager);
}

void VocabularyNavigation::beginTest()
{
    const Hourglass hourglass;
    common_.mainMenu.hide();
    tester_->open();
}

// A list with changes that are not saved is edited further.
void VocabularyNavigation::showManager()
{
    common_.mainMenu.hide();
    if (!vocabulary::changesArePending())
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

void VocabularyNavigation::goOnWithoutPendingChanges(const Step& step)
{
    if (!vocabulary::changesArePending()) {
        step();
        return;
    }
    afterWarning_ = step;
    warning_->open();
}

void VocabularyNavigation::chooseFile(std::string_view mode)
{
    manager_->hide();
    fileHandler_->open(mode);
}

} // namespace app
