#include "nouns/windows/noun_handler.h"

#include "platform/platform.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/settings.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace nouns {

using shell::ChoiceList;
using shell::FieldNames;

namespace {

constexpr QSize LargestBlock{110, 36};
constexpr int ListCharacters = 30;
constexpr int CharactersOfField = 28;
constexpr int LinesOfKept = 2;

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

constexpr std::string_view Kept =
    "Changes last until the program ends. To keep one, copy the noun's line into "
    "\"nouns.cfg\" and count new nouns there.";
constexpr std::string_view Fixed = "The nouns of the fourth and fifth declensions are fixed.";

constexpr std::string_view NewItem = "** Add New Item Here **";

// A text that cannot be changed stands on the window's own ground.
void setTypable(QLineEdit& box, bool typable)
{
    box.setReadOnly(!typable);
    QPalette colours = QApplication::palette(&box);
    if (!typable)
        colours.setBrush(QPalette::Base, colours.window());
    box.setPalette(colours);
}

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
    declensions_ = shell::makeChoiceList(this, "NHDeclList");
    declensions_->setAccessibleName(QStringLiteral("Declensions"));
    for (const std::string_view name : Declensions)
        declensions_->addItem(shell::fromUtf8(name));
    nouns_ = shell::makeChoiceList(this, "NHNounList");
    nouns_->setAccessibleName(QStringLiteral("Nouns"));
    shell::setLeastWidth(*nouns_, ListCharacters);
    paradigms_ = shell::makeControl<QComboBox>(this, "NHParadigm");
    paradigms_->setPlaceholderText(QStringLiteral("choose one"));
    form_ = new shell::RecordForm;
    form_->addControl(paradigms_, "&Paradigm");
    form_->addBoxes(this, Fields);
    shell::setLeastWidth(*form_->box(Stem), CharactersOfField);
    add_ = shell::makeButton(this, "NHAdd", "&Add");
    room_ = shell::makeLabel(this, "NHRoom");
    copy_ = shell::makeButton(this, "NHCopy", "Cop&y Line");
    kept_ = shell::makeLabel(this, "NHKept", shell::NoteType);
    close_ = shell::makeButton(this, "NHClose", "&Close");
    for (const Field latin : {Stem, ObliqueStem, Note})
        shell::takeMacrons(*form_->box(latin));
}

void NounHandler::layOut()
{
    declensions_->fitRows();
    shell::wrapText(*kept_, LinesOfKept);
    QBoxLayout* const lists = shell::columnOf(shell::MediumSpace, {declensions_, {nouns_, 1}});
    QBoxLayout* const record =
        shell::columnOf(shell::MediumSpace, {form_, shell::buttonRow({add_, room_}, {copy_}), kept_,
                                             shell::Part::gap(1), shell::buttonRow({}, {close_})});
    shell::setContent(centredBlock(LargestBlock), shell::FormMargins,
                      shell::rowOf(shell::WideSpace, {{lists, 2}, {record, 5}}));
}

void NounHandler::connectControls()
{
    connect(declensions_, &ChoiceList::currentRowChanged, this, &NounHandler::listNouns);
    connect(nouns_, &ChoiceList::currentRowChanged, this, &NounHandler::showNoun);
    connect(paradigms_, &QComboBox::currentIndexChanged, this, &NounHandler::chooseParadigm);
    connect(paradigms_, &QComboBox::activated, this, &NounHandler::keepDraft);
    connect(form_, &shell::RecordForm::edited, this, &NounHandler::keepDraft);
    connect(add_, &QPushButton::clicked, this, &NounHandler::add);
    connect(copy_, &QPushButton::clicked, this, &NounHandler::copyLine);
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
    showWhatCanBeDone();
}

// Fixed nouns have no room beside them, and no line of theirs would be read.
void NounHandler::showWhatCanBeDone()
{
    const bool fixed = hasFixedNouns(chosenParadigm());
    const bool typable = isNewRow(nouns_->currentRow()) && !fixed;
    paradigms_->setEnabled(typable);
    for (QLineEdit* const box : form_->boxes())
        setTypable(*box, typable);
    kept_->setText(shell::fromUtf8(fixed ? Fixed : Kept));
    copy_->setEnabled(!lineOfChosenNoun().empty());
    chooseParadigm();
}

// Without a paradigm the oblique stem may be typed: most nouns of the third declension need it.
void NounHandler::chooseParadigm()
{
    const int paradigm = chosenParadigm();
    form_->box(ObliqueStem)->setEnabled(paradigm == ThirdDeclension || paradigm == ParadigmUnchosen);
    const bool hasRoom = paradigm != ParadigmUnchosen && !hasFixedNouns(paradigm);
    room_->setText(hasRoom
                       ? QStringLiteral("%1 of %2").arg(listedNounCount(paradigm)).arg(mostNounsOf(paradigm))
                       : QString());
}

// The paradigm of a new noun until another is chosen: the last one. The third declension has none, as the
// gender decides there how a noun is declined.
int NounHandler::presetParadigm() const
{
    return paradigms_->findData(static_cast<int>(ThirdDeclension)) < 0 ? paradigms_->count() - 1 : -1;
}

std::optional<NounHandler::ListRow> NounHandler::chosenNoun() const
{
    const int row = nouns_->currentRow();
    if (row < 0 || isNewRow(row))
        return {};
    return rows_.at(static_cast<std::size_t>(row));
}

std::string NounHandler::lineOfChosenNoun() const
{
    const auto noun = chosenNoun();
    return noun ? lineOfListedNoun(noun->paradigm->paradigm, noun->number) : std::string();
}

void NounHandler::copyLine()
{
    QGuiApplication::clipboard()->setText(shell::fromUtf8(lineOfChosenNoun()));
}

void NounHandler::changeEvent(QEvent* event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showWhatCanBeDone();
}

void NounHandler::keepDraft()
{
    drafts_.at(static_cast<std::size_t>(declensions_->currentRow())) = {typedNoun(), chosenParadigm()};
}

void NounHandler::showDraft()
{
    const Draft& draft = drafts_.at(static_cast<std::size_t>(declensions_->currentRow()));
    const int chosen = paradigms_->findData(draft.paradigm);
    paradigms_->setCurrentIndex(chosen < 0 ? presetParadigm() : chosen);
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
    case NounEdit::NoParadigm:
        paradigms_->setFocus();
        platform::current().showMessage("Choose the paradigm first: masculine/feminine or neuter.");
        return;
    case NounEdit::FixedNouns:
        platform::current().showMessage(std::string(Fixed));
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
