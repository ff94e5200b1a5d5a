#include "vocabulary/windows/file_handler.h"

#include "platform/platform.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/text.h"
#include "vocabulary/vocabulary_edits.h"
#include "vocabulary/windows/list_files.h"
#include "vocabulary/windows/word_controls.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace vocabulary {

using shell::Caption;
using shell::ChoiceList;
using shell::columnOf;
using shell::LanguageTexts;
using shell::makeLabelOf;
using shell::Part;
using shell::rowOf;

namespace {

constexpr QSize LargestBlock{84, 30};

// clang-format off
constexpr std::array Captions = {
    //                       English       French              Italian  German       Spanish               Latin
    Caption{"FHDirLabel",   {"&Folders",   "&Dossiers",        {},     "&Ordner",    "&Carpetas",           "&Capsae"}},
    Caption{"FHFileLabel",  {"F&iles",     "&Fichiers",        {},     "&Dateien",   "&Archivos",           "&Fasciculi"}},
    Caption{"FHNameLabel",  {"File &name", "&Nom du fichier",  {},     "Datei&name", "&Nombre del archivo", "&Nomen fasciculi"}},
    Caption{"CancelFH",     {"&Cancel",    "&Annuler",         {},     "&Abbruch",   "Canc&elar",           "&Reverte!"}},
};

constexpr LanguageTexts LoadTitle{"Load a Word List",   "Charger une liste de mots",    {}, "Wortliste laden",     "Cargar una lista de palabras",  "Indicem verborum aperi!"};
constexpr LanguageTexts SaveTitle{"Save the Word List", "Enregistrer la liste de mots", {}, "Wortliste speichern", "Guardar la lista de palabras",  "Indicem verborum serva!"};
// clang-format on

constexpr std::string_view LoadAction = "&Load";
constexpr std::string_view SaveAction = "&Save";

void tellThatSaveFailed(const platform::Fault& fault)
{
    platform::current().showMessage("The list was not saved. " + fault.message());
}

bool isLoading()
{
    return vocabularyEditor.FileMode == file_mode::Load;
}

Endings endings()
{
    return isLoading() ? Endings(ReadEndings) : WrittenEndings;
}

bool isReadable(const std::filesystem::path& path)
{
    const auto fault = readVocabularyFile(path).fault;
    return !fault || !fault->refused();
}

std::filesystem::path pathOf(const QString& text)
{
    return text.toStdString();
}

} // namespace

FileHandler::FileHandler() : Window("FileHandler")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void FileHandler::makeControls()
{
    folderName_ = shell::makeControl<WordLabel>(this, "FHFolder");
    folders_ = shell::makeChoiceList(this, "FHDirBox");
    files_ = shell::makeChoiceList(this, "FHFileBox");
    name_ = shell::makeControl<QLineEdit>(this, "FHFileName");
    action_ = shell::makeButton(this, "LoadSaveFH", LoadAction);
    cancel_ = shell::makeButton(this, "CancelFH");
}

void FileHandler::layOut()
{
    QBoxLayout* const folders = columnOf(shell::HairSpace, {makeLabelOf(folders_, "FHDirLabel"), folders_});
    QBoxLayout* const files = columnOf(shell::HairSpace, {makeLabelOf(files_, "FHFileLabel"), files_});
    QBoxLayout* const name = rowOf(
        shell::SmallSpace,
        {makeLabelOf(name_, "FHNameLabel"), {name_, 1}, Part::space(shell::SmallSpace), action_, cancel_});
    layOutLines(LargestBlock, shell::FormMargins,
                {folderName_, {rowOf(shell::LargeSpace, {folders, files}), 1}, name});
}

void FileHandler::connectControls()
{
    connect(folders_, &ChoiceList::rowActivated, this, &FileHandler::enterFolder);
    connect(files_, &ChoiceList::rowChosen, this, &FileHandler::takeName);
    connect(files_, &ChoiceList::rowActivated, this, &FileHandler::activateFile);
    connect(name_, &QLineEdit::textChanged, this,
            [this](const QString& name) { action_->setEnabled(pathOf(name.trimmed()).has_filename()); });
    connect(name_, &QLineEdit::returnPressed, this, &FileHandler::loadOrSave);
    connect(action_, &QPushButton::clicked, this, &FileHandler::loadOrSave);
    connect(cancel_, &QPushButton::clicked, this, &FileHandler::left);
}

void FileHandler::setCaptions()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    const LanguageTexts& title = isLoading() ? LoadTitle : SaveTitle;
    setWindowTitle(shell::fromUtf8(title));
    action_->setText(shell::fromUtf8(isLoading() ? LoadAction : SaveAction));
}

void FileHandler::open(std::string_view mode)
{
    vocabularyEditor.FileMode = mode;
    toLoad_.clear();
    setCaptions();
    goToListFolder();
    showFolder();
    name_->setText(isLoading() ? QString() : shell::fromUtf8(fileToSave().filename().string()));
    action_->setEnabled(!name_->text().isEmpty());
    showInMainWindowState();
    name_->selectAll();
    if (isLoading())
        files_->setFocus();
    else
        name_->setFocus();
}

// A new list has no folder of its own: the window stays in the one used last.
void FileHandler::goToListFolder()
{
    std::error_code error;
    const auto file = std::filesystem::absolute(vocabularyList.File, error);
    if (!error && !vocabularyList.File.empty())
        folder_.setPath(shell::fromUtf8(file.parent_path().string()));
    if (!folder_.exists())
        folder_ = QDir::current();
    folder_.makeAbsolute();
}

void FileHandler::showFolder()
{
    folderName_->setText(QDir::toNativeSeparators(folder_.absolutePath()));
    folders_->clear();
    if (!folder_.isRoot())
        folders_->addItem(QStringLiteral(".."));
    folders_->addItems(folder_.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    files_->clear();
    files_->addItems(listFilesIn(folder_, endings()));
}

void FileHandler::enterFolder(int row)
{
    folder_.setPath(QDir::cleanPath(folder_.absoluteFilePath(folders_->item(row)->text())));
    showFolder();
}

void FileHandler::takeName(int row)
{
    if (row >= 0)
        name_->setText(files_->item(row)->text());
}

// A file is not written over by a double click.
void FileHandler::activateFile(int row)
{
    takeName(row);
    if (isLoading())
        loadOrSave();
    else
        name_->setFocus();
}

std::filesystem::path FileHandler::path() const
{
    return pathOf(folder_.absolutePath()) / pathOf(withEnding(folder_, name_->text().trimmed(), endings()));
}

void FileHandler::loadOrSave()
{
    if (!isVisible() || !action_->isEnabled())
        return;
    if (isLoading())
        load(path());
    else
        save();
}

void FileHandler::load(const std::filesystem::path& file)
{
    toLoad_ = file;
    if (changesArePending() && isReadable(toLoad_))
        Q_EMIT warningRequested();
    else
        replaceList();
}

void FileHandler::loadNew(const std::filesystem::path& file)
{
    showFolder();
    name_->setText(shell::fromUtf8(file.filename().string()));
    load(file);
}

void FileHandler::replaceList()
{
    loadAndTell(
        toLoad_, [this] { Q_EMIT loaded(); },
        [this](const LoadFault& fault) { Q_EMIT divisionRequested(toLoad_, fault); });
}

void FileHandler::saveBeforeLoad()
{
    if (vocabularyList.File.empty() || vocabularyList.FileIsForeign)
        chooseFileBeforeLoad();
    else if (const auto fault = saveList(vocabularyList.File))
        tellThatSaveFailed(*fault);
    else
        replaceList();
}

void FileHandler::chooseFileBeforeLoad()
{
    const std::filesystem::path toLoad = toLoad_;
    open(file_mode::Save);
    toLoad_ = toLoad;
}

void FileHandler::save()
{
    if (wouldReplaceAnotherFile(path()))
        Q_EMIT replacementRequested(path());
    else
        replaceFile();
}

void FileHandler::replaceFile()
{
    const auto fault = saveList(path());
    if (!fault && !toLoad_.empty())
        return replaceList();
    Q_EMIT left();
    if (fault)
        tellThatSaveFailed(*fault);
}

} // namespace vocabulary
