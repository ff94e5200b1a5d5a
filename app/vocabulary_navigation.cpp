#include "app/vocabulary_navigation.h"

#include "app/hourglass.h"
#include "shell/drill.h"
#include "vocabulary/vocabulary_edits.h"

namespace app {

using vocabulary::FileHandler;
using vocabulary::VcabLoader;
using vocabulary::VcabManager;
using vocabulary::Vcabtester;
using vocabulary::VcabWarning;

VocabularyNavigation::VocabularyNavigation(FeedbackWindows& feedback) : feedback_(feedback) {}

Vcabtester& VocabularyNavigation::tester()
{
    if (tester_)
        return *tester_;
    tester_ = std::make_unique<Vcabtester>();
    const Vcabtester* const window = tester_.get();
    connect(window, &Vcabtester::answerJudged, this, [this](bool right) { feedback_.announce(right); });
    connect(window, &Vcabtester::listRequested, this, &VocabularyNavigation::showLoader);
    connect(window, &Vcabtester::editorRequested, this, &VocabularyNavigation::editTestedList);
    connect(window, &Vcabtester::left, this, &VocabularyNavigation::leaveTester);
    return *tester_;
}

VcabLoader& VocabularyNavigation::loader()
{
    if (loader_)
        return *loader_;
    loader_ = std::make_unique<VcabLoader>();
    connect(loader_.get(), &VcabLoader::left, this, [this] {
        loader_->hide();
        returnToTester();
    });
    return *loader_;
}

VcabManager& VocabularyNavigation::manager()
{
    if (manager_)
        return *manager_;
    manager_ = std::make_unique<VcabManager>();
    const VcabManager* const window = manager_.get();
    connect(window, &VcabManager::saveRequested, this, &VocabularyNavigation::chooseFileToSave);
    connect(window, &VcabManager::loadRequested, this,
            [this] { goOnWithoutPendingChanges(&VocabularyNavigation::chooseFileToLoad); });
    connect(window, &VcabManager::exitRequested, this,
            [this] { goOnWithoutPendingChanges(&VocabularyNavigation::returnToTester); });
    return *manager_;
}

FileHandler& VocabularyNavigation::fileHandler()
{
    if (fileHandler_)
        return *fileHandler_;
    fileHandler_ = std::make_unique<FileHandler>();
    const FileHandler* const window = fileHandler_.get();
    connect(window, &FileHandler::loaded, this, [this] {
        fileHandler_->hide();
        manager_->open();
    });
    connect(window, &FileHandler::left, this, [this] {
        fileHandler_->hide();
        manager_->comeBack();
    });
    return *fileHandler_;
}

VcabWarning& VocabularyNavigation::warning()
{
    if (warning_)
        return *warning_;
    warning_ = std::make_unique<VcabWarning>();
    const VcabWarning* const window = warning_.get();
    connect(window, &VcabWarning::left, warning_.get(), &VcabWarning::hide);
    connect(window, &VcabWarning::discardRequested, this, &VocabularyNavigation::goOnWithoutSaving);
    connect(window, &VcabWarning::saveRequested, this, [this] {
        warning_->hide();
        chooseFileToSave();
    });
    return *warning_;
}

void VocabularyNavigation::showTester()
{
    tester().open();
}

void VocabularyNavigation::showManager()
{
    if (!vocabulary::changesArePending())
        vocabulary::beginNewList();
    manager().open();
}

void VocabularyNavigation::leaveTester()
{
    const Hourglass hourglass;
    putTesterAside();
    testWaits_ = false;
    Q_EMIT left();
}

void VocabularyNavigation::putTesterAside()
{
    shell::leaveDrill();
    feedback_.hide();
    tester_->hide();
    testWaits_ = true;
}

void VocabularyNavigation::showLoader()
{
    putTesterAside();
    loader().open();
}

void VocabularyNavigation::editTestedList()
{
    putTesterAside();
    manager().open();
}

void VocabularyNavigation::goOnWithoutPendingChanges(Step step)
{
    if (!vocabulary::changesArePending()) {
        (this->*step)();
        return;
    }
    afterWarning_ = step;
    warning().open();
}

void VocabularyNavigation::goOnWithoutSaving()
{
    warning_->hide();
    (this->*afterWarning_)();
}

void VocabularyNavigation::chooseFileToLoad()
{
    manager_->hide();
    fileHandler().open(vocabulary::file_mode::Load);
}

void VocabularyNavigation::chooseFileToSave()
{
    manager_->hide();
    fileHandler().open(vocabulary::file_mode::Save);
}

void VocabularyNavigation::returnToTester()
{
    const Hourglass hourglass;
    if (manager_)
        manager_->hide();
    if (testWaits_)
        tester().comeBack();
    else
        tester().open();
    testWaits_ = false;
}

} // namespace app
