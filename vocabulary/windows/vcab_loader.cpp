#include "vocabulary/windows/vcab_loader.h"

#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/windows/list_files.h"

#include <QBoxLayout>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::ChoiceList;

namespace {

constexpr QSize LargestBlock{56, 26};

// clang-format off
constexpr std::array Captions = {
    //                          English             French                     Italian  German              Spanish                     Latin
    Caption{"VcabLoader",       {"Open a Word List", "Ouvrir une liste de mots", {},     "Wortliste öffnen", "Abrir una lista de palabras", "Indicem verborum aperi!"}},
    Caption{"VcabLoaderOpen",   {"&Open",            "&Ouvrir",                  {},     "Ö&ffnen",          "&Abrir",                      "&Aperi!"}},
    Caption{"VcabLoaderCancel", {"&Cancel",          "&Annuler",                 {},     "&Abbrechen",       "&Cancelar",                   "&Reverte!"}},
};
// clang-format on

} // namespace

VcabLoader::VcabLoader() : Window("VcabLoader")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void VcabLoader::makeControls()
{
    files_ = shell::makeChoiceList(this, "VcabFile");
    open_ = shell::makeButton(this, "VcabLoaderOpen");
    cancel_ = shell::makeButton(this, "VcabLoaderCancel");
}

void VcabLoader::layOut()
{
    layOutLines(LargestBlock, shell::FormMargins, {files_, shell::buttonRow({}, {open_, cancel_})});
}

void VcabLoader::connectControls()
{
    connect(files_, &ChoiceList::rowChosen, this, [this](int row) { open_->setEnabled(row >= 0); });
    connect(files_, &ChoiceList::rowActivated, this, &VcabLoader::loadChosen);
    connect(open_, &QPushButton::clicked, this, &VcabLoader::loadChosen);
    connect(cancel_, &QPushButton::clicked, this, &VcabLoader::left);
}

void VcabLoader::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    files_->setAccessibleName(windowTitle());
    files_->clear();
    files_->addItems(listFilesIn(QDir::current()));
    open_->setEnabled(false);
    showInMainWindowState();
    files_->setFocus();
}

// The message comes last, so that it stands above the window that is shown then.
void VcabLoader::loadChosen()
{
    if (!isVisible() || files_->chosenRow() < 0)
        return;
    const auto fault = loadList(files_->item(files_->chosenRow())->text().toStdString());
    if (!fault || !fault->refused())
        Q_EMIT left();
    if (fault)
        platform::current().showMessage(fault->message());
}

} // namespace vocabulary
