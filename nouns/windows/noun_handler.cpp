#include "nouns/windows/noun_handler.h"

#include "platform/platform.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/settings.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

namespace nouns {

using shell::FieldNames;

namespace {

constexpr QSize LargestBlock{110, 40};
constexpr int CharactersOfField = 16;

constexpr std::array<std::string_view, DeclensionCount> Declensions = {
    "First Declension", "Second Declension", "Third Declension", "Fourth Declension", "Fifth Declension"};

// The boxes of the form, in their order.
enum Field { Stem, ObliqueStem, Note, English, German, French, Spanish };

constexpr std::array Fields = {FieldNames{"NHStem", "&Stem"},
                               FieldNames{"NHObliqueStem", "O&blique stem"},
                               FieldNames{"NHNote", "Gender and geni&tive"},
                               FieldNames{"NHMeaning0", "&English"},
                               FieldNames{"NHMeaning1", "&German"},
                               FieldNames{"NHMeaning2", "&French"},
                               FieldNames{"NHMeaning3", "Spanis&h"}};

std::array<std::string_view, Fields.size()> textsOf(const NounRecord& noun)
{
    const auto& [english, german, french, spanish] = noun.meanings;
    return {noun.stem, noun.obliqueStem, noun.note, english, german, french, spanish};
}

constexpr std::string_view NewItem = "** Add New Item Here **";

} // namespace

NounHandler::NounHandler() : Window("NounHandler", "nounmanager")
{
    setWindowTitle(QStringLiteral("Noun Manager"));
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

// In the order in which Tab goes through them.
void NounHandler::makeControls()
{
    declensions_ = shell::makeControl<QListWidget>(this, "NHDeclList");
    declensions_->setAccessibleName(QStringLiteral("Declensions"));
    nouns_ = shell::makeControl<QListWidget>(this, "NHNounList");
    nouns_->setAccessibleName(QStringLiteral("Nouns"));
    paradigms_ = shell::makeControl<QComboBox>(this, "NHParadigm");
    form_ = new shell::RecordForm;
    form_->addControl(paradigms_, "&Paradigm");
    form_->addBoxes(this, Fields);
    add_ = shell::makeButton(this, "NHAdd", "&Add");
    close_ = shell::makeButton(this, "NHClose", "&Close");
    nouns_->setMinimumWidth(nouns_->fontMetrics().horizontalAdvance(shell::fromUtf8(NewItem)) +
                            2 * nouns_->verticalScrollBar()->sizeHint().width());
    for (const std::string_view name : Declensions)
        declensions_->addItem(shell::fromUtf8(name));
    declensions_->setMinimumWidth(declensions_->sizeHintForColumn(0) +
                                  declensions_->verticalScrollBar()->sizeHint().width());
    shell::setLeastWidth(*form_->box(Stem), CharactersOfField);
    for (const Field latin : {Stem, ObliqueStem, Note})
        shell::takeMacrons(*form_->box(latin));
}

void NounHandler::layOut()
{
    QBoxLayout* const record =
        shell::columnOf(shell::LargeSpace, {form_, shell::Part::gap(), shell::buttonRow({add_}, {close_})});
    shell::setContent(centredBlock(LargestBlock), shell::FormMargins,
                      shell::rowOf(shell::LargeSpace, {{declensions_, 2}, {nouns_, 2}, {record, 4}}));
}

void NounHandler::connectControls()
{
    connect(declensions_, &QListWidget::currentRowChanged, this, &NounHandler::listNouns);
    connect(nouns_, &QListWidget::currentRowChanged, this, &NounHandler::showNoun);
    connect(paradigms_, &QComboBox::currentIndexChanged, this, &NounHandler::chooseParadigm);
    connect(paradigms_, &QComboBox::activated, this, &NounHandler::keepDraft);
    connect(form_, &shell::RecordForm::edited, this, &NounHandler::keepDraft);
    connect(add_, &QPushButton::clicked, this, &NounHandler::add);
    connect(close_, &QPushButton::clicked, this, &NounHandler::left);
}

void NounHandler::open()
{
    declensions_->setCurrentRow(0);
    listNouns();
    showInMainWindowState();
    declensions_->setFocus();
}

void NounHandler::listNouns()
{
    nouns_->clear();
    rows_.clear();
    paradigms_->clear();
    for (const ListedParadigm& paradigm : paradigmsOf(declensions_->currentRow())) {
        if (paradigm.paradigm == FourthDeclension)
            countFourthDeclension();
        paradigms_->addItem(shell::fromUtf8(paradigm.name), static_cast<int>(paradigm.paradigm));
        for (int number = 1; number <= listedNounCount(paradigm.paradigm); ++number) {
            rows_.push_back({&paradigm, number});
            nouns_->addItem(shell::latinText(listedNominative(paradigm, number)));
        }
    }
    nouns_->setCurrentRow(rows_.empty() ? -1 : 0);
    if (rows_.empty())
        showNoun(-1);
}

bool NounHandler::isNewRow(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) >= rows_.size();
}

int NounHandler::chosenParadigm() const
{
    return paradigms_->currentData().toInt();
}

void NounHandler::showNoun(int row)
{
    if (isNewRow(row)) {
        showDraft();
    } else if (row < 0) {
        form_->show(textsOf({}));
    } else {
        const auto& [paradigm, number] = rows_.at(static_cast<std::size_t>(row));
        paradigms_->setCurrentIndex(paradigms_->findData(static_cast<int>(paradigm->paradigm)));
        form_->show(textsOf(listedNoun(paradigm->paradigm, number)));
    }
    allowTyping(isNewRow(row));
}

void NounHandler::allowTyping(bool allowed)
{
    paradigms_->setEnabled(allowed);
    for (QLineEdit* const box : form_->boxes())
        box->setReadOnly(!allowed);
    form_->box(ObliqueStem)->setEnabled(chosenParadigm() == ThirdDeclension);
}

void NounHandler::chooseParadigm(int /*row*/)
{
    form_->box(ObliqueStem)->setEnabled(chosenParadigm() == ThirdDeclension);
}

void NounHandler::keepDraft()
{
    drafts_.at(static_cast<std::size_t>(declensions_->currentRow())) = {typedNoun(), chosenParadigm()};
}

void NounHandler::showDraft()
{
    const Draft& draft = drafts_.at(static_cast<std::size_t>(declensions_->currentRow()));
    const int chosen = paradigms_->findData(draft.paradigm);
    paradigms_->setCurrentIndex(chosen < 0 ? paradigms_->count() - 1 : chosen);
    form_->show(textsOf(draft.noun));
}

NounRecord NounHandler::typedNoun() const
{
    const auto texts = form_->take();
    return {.note = texts.at(Note),
            .stem = texts.at(Stem),
            .obliqueStem = texts.at(ObliqueStem),
            .meanings = {texts.at(English), texts.at(German), texts.at(French), texts.at(Spanish)}};
}

void NounHandler::add()
{
    shell::settings.ActiveWindowName = "NHadd";
    if (isNewRow(nouns_->currentRow()))
        storeNewNoun();
    else
        addNewRow();
}

void NounHandler::addNewRow()
{
    const auto newRow = static_cast<int>(rows_.size());
    if (nouns_->count() == newRow)
        nouns_->addItem(shell::fromUtf8(NewItem));
    nouns_->setCurrentRow(newRow);
    form_->box(Stem)->setFocus();
}

void NounHandler::storeNewNoun()
{
    const int paradigm = chosenParadigm();
    switch (addNoun(paradigm, typedNoun())) {
    case NounEdit::FixedNouns:
        platform::current().showMessage("The nouns of the fourth and fifth declensions are fixed.");
        return;
    case NounEdit::NoStem:
        platform::current().showMessage("A noun needs a stem.");
        return;
    case NounEdit::NoObliqueStem:
        platform::current().showMessage("A noun of the third declension needs an oblique stem as well.");
        return;
    case NounEdit::ListFull:
        platform::current().showMessage("This paradigm holds " + std::to_string(mostNounsOf(paradigm)) +
                                        " nouns at the most.");
        return;
    case NounEdit::Stored:
        break;
    }
    drafts_.at(static_cast<std::size_t>(declensions_->currentRow())) = {};
    listNouns();
    chooseLastOf(paradigm);
}

void NounHandler::chooseLastOf(int paradigm)
{
    const auto last = std::find_if(rows_.rbegin(), rows_.rend(),
                                   [&](const ListRow& row) { return row.paradigm->paradigm == paradigm; });
    nouns_->setCurrentRow(static_cast<int>(rows_.rend() - last) - 1);
    nouns_->setFocus();
}

} // namespace nouns
