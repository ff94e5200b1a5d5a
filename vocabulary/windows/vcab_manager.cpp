#include "vocabulary/windows/vcab_manager.h"

#include "platform/platform.h"
#include "platform/text_file.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "vocabulary/vocabulary_edits.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <memory>

namespace vocabulary {

using shell::Caption;
using shell::ChoiceList;

namespace {

constexpr QSize LargestBlock{100, 32};
constexpr double ListType = 1.15;
constexpr int WordCharacters = 22;

struct Field {
    const char* box;
    const char* label;
    std::string WordRecord::*text;
};

constexpr std::array<Field, 3> Fields = {{{"VcabManWord", "WordLabel", &WordRecord::word},
                                          {"VcabManTrans", "TranslationLabel", &WordRecord::translation},
                                          {"VcabManHint", "HintLabel", &WordRecord::hint}}};

// clang-format off
constexpr std::array Captions = {
    //                          English              French                   Italian  German                   Spanish                  Latin
    Caption{"VcabManager",      {"Vocabulary Editor", "Éditeur de vocabulaire", {},    "Wortschatz bearbeiten", "Editor de vocabulario", "Verba nostra corrige!"}},
    Caption{"WordLabel",        {"&Word",             "&Mot",                   {},    "&Wort",                 "&Palabra",              "&Verbum"}},
    Caption{"TranslationLabel", {"&Translation",      "&Traduction",            {},    "&Übersetzung",          "&Traducción",           "&Interpretatio"}},
    Caption{"HintLabel",        {"&Hint",             "&Indication",            {},    "H&inweis",              "P&ista",                "&Nota"}},
    Caption{"VcabManAccept",    {"&Accept",           "A&ccepter",              {},    "Über&nehmen",           "&Aceptar",              "&Accipe!"}},
    Caption{"VcabManAdd",       {"A&dd",              "&Ajouter",               {},    "&Hinzufügen",           "Aña&dir",               "A&dde!"}},
    Caption{"VcabManDelete",    {"D&elete",           "&Supprimer",             {},    "&Löschen",              "&Borrar",               "De&le!"}},
    Caption{"VcabManLoad",      {"&Load...",          "C&harger...",            {},    "La&den...",             "&Cargar...",            "Ape&ri..."}},
    Caption{"VcabManSave",      {"&Save...",          "&Enregistrer...",        {},    "&Speichern...",         "&Guardar...",           "&Serva..."}},
    Caption{"VcabManExit",      {"E&xit",             "&Quitter",               {},    "&Beenden",              "&Salir",                "&Egredere!"}},
};
// clang-format on

} // namespace

VcabManager::VcabManager() : Window("VcabManager")
{
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

void VcabManager::makeControls()
{
    words_ = shell::makeControl<ChoiceList>(this, "VcabManMainForm");
    shell::setType(*words_, ListType);
    words_->setMinimumWidth(WordCharacters * words_->fontMetrics().averageCharWidth());
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_.at(i) = shell::makeControl<QLineEdit>(this, Fields.at(i).box);
        boxes_.at(i)->setMaxLength(platform::LongestFile);
        shell::setType(*boxes_.at(i), shell::FormType);
    }
    accept_ = shell::makeButton(this, "VcabManAccept");
    add_ = shell::makeButton(this, "VcabManAdd");
    delete_ = shell::makeButton(this, "VcabManDelete");
    load_ = shell::makeButton(this, "VcabManLoad");
    save_ = shell::makeButton(this, "VcabManSave");
    exit_ = shell::makeButton(this, "VcabManExit");
}

void VcabManager::layOut()
{
    auto* const right = new QVBoxLayout;
    right->setSpacing(shell::MediumSpace);
    right->addLayout(fields());
    right->addLayout(recordButtons());
    right->addStretch();
    right->addLayout(listButtons());

    auto* const columns = new QHBoxLayout(centredBlock(LargestBlock));
    columns->setContentsMargins(shell::LargeSpace, shell::LargeSpace, shell::LargeSpace, shell::LargeSpace);
    columns->setSpacing(shell::WideSpace);
    columns->addWidget(words_, 2);
    columns->addLayout(right, 3);
}

QGridLayout* VcabManager::fields()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::MediumSpace);
    grid->setVerticalSpacing(shell::SmallSpace);
    grid->setColumnStretch(1, 1);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        auto* const label = shell::makeLabel(this, Fields.at(i).label);
        label->setBuddy(boxes_.at(i));
        grid->addWidget(label, static_cast<int>(i), 0);
        grid->addWidget(boxes_.at(i), static_cast<int>(i), 1);
    }
    return grid;
}

QBoxLayout* VcabManager::recordButtons()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(accept_);
    row->addWidget(add_);
    row->addStretch();
    row->addWidget(delete_);
    return row;
}

QBoxLayout* VcabManager::listButtons()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(shell::SmallSpace);
    row->addWidget(load_);
    row->addWidget(save_);
    row->addStretch();
    row->addWidget(exit_);
    return row;
}

void VcabManager::connectControls()
{
    connect(words_, &ChoiceList::rowChosen, this, [this](int row) { moveTo(row + 1); });
    connect(words_, &ChoiceList::rowActivated, this, [this] { boxes_.front()->setFocus(); });
    for (const QLineEdit* const box : boxes_)
        connect(box, &QLineEdit::returnPressed, this, &VcabManager::enterRecord);
    connect(accept_, &QPushButton::clicked, this, &VcabManager::accept);
    connect(add_, &QPushButton::clicked, this, &VcabManager::add);
    connect(delete_, &QPushButton::clicked, this, &VcabManager::deleteChosen);
    connect(load_, &QPushButton::clicked, this, [this] { leaveFor(&VcabManager::loadRequested); });
    connect(save_, &QPushButton::clicked, this, [this] { leaveFor(&VcabManager::saveRequested); });
    connect(exit_, &QPushButton::clicked, this, [this] { leaveFor(&VcabManager::exitRequested); });
}

void VcabManager::open()
{
    shown_ = 0;
    comeBack();
    if (vocabularyList.WordCount > 0)
        words_->setFocus();
    else
        boxes_.front()->setFocus();
}

void VcabManager::comeBack()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    words_->setAccessibleName(windowTitle());
    listWords();
    showRecord(shown_);
    showInMainWindowState();
}

void VcabManager::listWords()
{
    const QSignalBlocker quiet(words_);
    while (words_->count() < vocabularyList.WordCount)
        words_->addItem(QString());
    while (words_->count() > vocabularyList.WordCount)
        const std::unique_ptr<QListWidgetItem> surplus(words_->takeItem(words_->count() - 1));
    for (int row = 0; row < words_->count(); ++row)
        words_->item(row)->setText(shell::fromUtf8(vocabularyList.Working[row + 1].word));
}

// Marks the record in the list, and leaves the boxes alone.
void VcabManager::markChosen(int number)
{
    const QSignalBlocker quiet(words_);
    shown_ = number;
    words_->setCurrentRow(number - 1);
    accept_->setEnabled(number > 0);
    delete_->setEnabled(number > 0);
}

void VcabManager::showRecord(int number)
{
    markChosen(number);
    const WordRecord record = number > 0 ? vocabularyList.Working[number] : WordRecord{};
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        boxes_.at(i)->setText(shell::fromUtf8(record.*Fields.at(i).text));
}

bool VcabManager::boxesAreEdited() const
{
    return std::ranges::any_of(boxes_, [](const QLineEdit* box) { return box->isModified(); });
}

bool VcabManager::boxesAreEmpty() const
{
    return std::ranges::all_of(boxes_, [](const QLineEdit* box) { return box->text().isEmpty(); });
}

// A ">" that stands for a comma since the last save becomes one again when the record is stored.
WordRecord VcabManager::recordInBoxes() const
{
    WordRecord record;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        record.*Fields.at(i).text = boxes_.at(i)->text().toStdString();
    return record;
}

void VcabManager::moveTo(int number)
{
    if (number == shown_)
        return;
    if (takeBoxes())
        showRecord(number);
    else
        markChosen(shown_);
}

// False where the boxes hold a new record for which the list has no room; they keep it.
bool VcabManager::takeBoxes()
{
    if (!boxesAreEdited())
        return true;
    if (shown_ == 0)
        return boxesAreEmpty() || addBoxes();
    acceptWord(shown_, recordInBoxes());
    listWords();
    return true;
}

bool VcabManager::addBoxes()
{
    if (!addWord(recordInBoxes())) {
        platform::current().showMessage("A word list holds 300 words at the most.");
        return false;
    }
    listWords();
    return true;
}

void VcabManager::accept()
{
    acceptWord(shown_, recordInBoxes());
    listWords();
    showRecord(shown_);
}

void VcabManager::add()
{
    if (!boxesAreEmpty() && addBoxes()) {
        showRecord(0);
        words_->scrollToBottom();
    }
    boxes_.front()->setFocus();
}

// A text that was typed and not yet accepted outlives the record: it can still be added, but only by Add.
void VcabManager::deleteChosen()
{
    const int number = shown_;
    const bool edited = boxesAreEdited();
    deleteWord(number);
    listWords();
    if (!edited) {
        showRecord(std::min<int>(number, vocabularyList.WordCount));
        return;
    }
    markChosen(0);
    for (QLineEdit* const box : boxes_)
        box->setModified(false);
}

void VcabManager::enterRecord()
{
    if (shown_ > 0)
        accept();
    else
        add();
}

void VcabManager::leaveFor(void (VcabManager::*request)())
{
    if (!takeBoxes())
        return;
    showRecord(shown_);
    Q_EMIT(this->*request)();
}

void VcabManager::closeBoxPressed()
{
    leaveFor(&VcabManager::exitRequested);
}

} // namespace vocabulary
