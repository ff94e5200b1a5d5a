#include "vocabulary/windows/vcab_loader.h"

#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/windows/list_files.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::ChoiceList;
using shell::LanguageTexts;

namespace {

constexpr QSize LargestBlock{56, 26};

// clang-format off
constexpr std::array Captions = {
    //                          English             French                     Italian  German              Spanish                     Latin
    Caption{"VcabLoader",       {"Open a Word List", "Ouvrir une liste de mots", {},     "Wortliste öffnen", "Abrir una lista de palabras", "Indicem verborum aperi!"}},
    Caption{"VcabLoaderOpen",   {"&Open",            "&Ouvrir",                  {},     "Ö&ffnen",          "&Abrir",                      "&Aperi!"}},
    Caption{"VcabLoaderCancel", {"&Cancel",          "&Annuler",                 {},     "&Abbruch",         "&Cancelar",                   "&Reverte!"}},
};

// The number of words stands in the place of %1, and that of those which the test counts in that of %2.
constexpr LanguageTexts Count{"Words: %1",                          "Mots : %1",                            {}, "Wörter: %1",                        "Palabras: %1",                           "Verba: %1"};
constexpr LanguageTexts LongCount{"Words: %1. The test counts the first %2; any other ends the program.", "Mots : %1. Le test compte les %2 premiers ; tout autre met fin au programme.", {}, "Wörter: %1. Der Test zählt die ersten %2; jedes andere beendet das Programm.", "Palabras: %1. La prueba cuenta las primeras %2; cualquier otra termina el programa.", "Verba: %1. Probatio prima %2 numerat; quodlibet aliud programma finit."};
// clang-format on

QString countOf(const VocabularyFile& file)
{
    const auto words = static_cast<int>(file.records.size());
    if (words == 0 && file.fault && file.fault->refused())
        return {};
    if (words <= LastCountedWord || words > MostWords)
        return shell::fromUtf8(Count).arg(words);
    return shell::fromUtf8(LongCount).arg(words).arg(LastCountedWord);
}

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
    count_ = shell::makeLabel(this, "VcabLoaderCount");
    shell::wrapText(*count_, 1);
    open_ = shell::makeButton(this, "VcabLoaderOpen");
    cancel_ = shell::makeButton(this, "VcabLoaderCancel");
}

void VcabLoader::layOut()
{
    layOutLines(LargestBlock, shell::FormMargins,
                {{files_, 1}, count_, shell::buttonRow({}, {open_, cancel_})});
}

void VcabLoader::connectControls()
{
    connect(files_, &ChoiceList::rowChosen, this, &VcabLoader::showCount);
    connect(files_, &ChoiceList::rowActivated, this, &VcabLoader::loadChosen);
    connect(open_, &QPushButton::clicked, this, &VcabLoader::loadChosen);
    connect(cancel_, &QPushButton::clicked, this, &VcabLoader::left);
}

void VcabLoader::open()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    files_->setAccessibleName(windowTitle());
    files_->clear();
    files_->addItems(listFilesIn(QDir::current(), ReadEndings));
    showCount(files_->chosenRow());
    showInMainWindowState();
    files_->setFocus();
}

void VcabLoader::showCount(int row)
{
    open_->setEnabled(row >= 0);
    count_->setText(row >= 0 ? countOf(readVocabularyFile(fileIn(row))) : QString());
}

std::filesystem::path VcabLoader::fileIn(int row) const
{
    return files_->item(row)->text().toStdString();
}

void VcabLoader::loadChosen()
{
    if (isVisible() && files_->chosenRow() >= 0)
        load(fileIn(files_->chosenRow()));
}

void VcabLoader::load(const std::filesystem::path& file)
{
    loadAndTell(
        file, [this] { Q_EMIT left(); },
        [&](const LoadFault& fault) { Q_EMIT divisionRequested(file, fault); });
}

} // namespace vocabulary
