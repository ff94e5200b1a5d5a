#include "vocabulary/windows/vcab_manager.h"

#include "platform/platform.h"
#include "platform/text_file.h"
#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "vocabulary/vocabulary_edits.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <memory>

namespace vocabulary {

using shell::Caption;
using shell::ChoiceList;
using shell::FieldNames;
using shell::LanguageTexts;

namespace {

constexpr QSize LargestBlock{150, 32};
constexpr int WordCharacters = 22;

// The boxes of the form, in their order.
enum Field { Word, Translation, Hint };

// The labels get their texts with the captions.
constexpr std::array Fields = {FieldNames{"VcabManWord", "", "WordLabel"},
                               FieldNames{"VcabManTrans", "", "TranslationLabel"},
                               FieldNames{"VcabManHint", "", "HintLabel"}};

std::array<std::string_view, Fields.size()> textsOf(const WordRecord& record)
{
    return {record.word, record.translation, record.hint};
}

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

constexpr LanguageTexts NewList{"new list",             "nouvelle liste",         {},    "neue Liste",            "lista nueva",           "index novus"};
// clang-format on

// A record without a word is seen by its translation.
QString shownInList(const WordRecord& record)
{
    return record.word.empty() && !record.translation.empty()
               ? QStringLiteral("(%1)").arg(shell::fromUtf8(record.translation))
               : shell::latinText(record.word);
}

// The name of the list's file.
QString listName()
{
    const std::string file = vocabularyList.File.filename().string();
    return shell::fromUtf8(file.empty() ? NewList.currentOrDesigned() : std::string_view(file));
}

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
    words_ = shell::makeChoiceList(this, "VcabManMainForm");
    shell::setLeastWidth(*words_, WordCharacters);
    form_ = new shell::RecordForm;
    form_->addBoxes(this, Fields);
    for (QLineEdit* const box : form_->boxes()) {
        box->setMaxLength(platform::LongestFile);
        shell::setType(*box, shell::FormType);
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
    form_->setColumnStretch(1, 1);
    QBoxLayout* const record = shell::columnOf(shell::MediumSpace, {form_, {buttons(), 1}});
    shell::setContent(centredBlock(LargestBlock), shell::FormMargins,
                      shell::rowOf(shell::WideSpace, {{words_, 2}, {record, 3}}));
}

// The buttons for a word above those for the list.
QLayout* VcabManager::buttons()
{
    QGridLayout* const grid = shell::gridOf(shell::SmallSpace, shell::MediumSpace);
    const std::array<std::array<QPushButton*, 3>, 2> rows = {
        {{accept_, add_, delete_}, {load_, save_, exit_}}};
    for (int row = 0; const auto& [left, middle, right] : rows) {
        grid->addWidget(left, row, 0);
        grid->addWidget(middle, row, 1);
        grid->addWidget(right, row, 3);
        row += 2;
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(1, 1);
    return grid;
}

void VcabManager::connectControls()
{
    connect(words_, &ChoiceList::rowChosen, this, [this](int row) { moveTo(row + 1); });
    connect(words_, &ChoiceList::rowActivated, this, [this] { form_->goOnIn(Word); });
    for (const QLineEdit* const box : form_->boxes())
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
    words_->scrollToTop();
    if (vocabularyList.WordCount > 0)
        words_->setFocus();
    else
        form_->goOnIn(Word);
}

void VcabManager::comeBack()
{
    shell::applyCurrentOrDesignedCaptions(*this, Captions);
    words_->setAccessibleName(windowTitle());
    setWindowTitle(windowTitle() + QStringLiteral(" - ") + listName());
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
        words_->item(row)->setText(shownInList(vocabularyList.Working[row + 1]));
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
    form_->show(textsOf(number > 0 ? vocabularyList.Working[number] : WordRecord{}));
}

bool VcabManager::boxesAreEdited() const
{
    return std::ranges::any_of(form_->boxes(), [](const QLineEdit* box) { return box->isModified(); });
}

// A hint alone is a hint to nothing.
bool VcabManager::boxesHoldNoWord() const
{
    return form_->box(Word)->text().isEmpty() && form_->box(Translation)->text().isEmpty();
}

WordRecord VcabManager::recordInBoxes() const
{
    const auto texts = form_->take();
    return {.word = texts.at(Word), .translation = texts.at(Translation), .hint = texts.at(Hint)};
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
        return boxesHoldNoWord() || addBoxes();
    acceptWord(shown_, recordInBoxes());
    listWords();
    return true;
}

bool VcabManager::addBoxes()
{
    if (!addWord(recordInBoxes())) {
        platform::current().showMessage("A word list holds " + std::to_string(MostWords) +
                                        " words at the most.");
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
    if (!boxesHoldNoWord() && addBoxes()) {
        showRecord(0);
        words_->scrollToBottom();
    }
    form_->goOnIn(Word);
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
    for (QLineEdit* const box : form_->boxes())
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
    const int words = vocabularyList.WordCount;
    if (!takeBoxes())
        return;
    showRecord(shown_);
    if (vocabularyList.WordCount > words) {
        words_->scrollToBottom();
        form_->goOnIn(Word);
    }
    Q_EMIT(this->*request)();
}

void VcabManager::closeBoxPressed()
{
    leaveFor(&VcabManager::exitRequested);
}

} // namespace vocabulary
