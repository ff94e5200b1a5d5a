#include "nouns/windows/noun_handler.h"

#include "nouns/noun_list_file.h"
#include "platform/platform.h"
#include "shell/kit/choice_box.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "shell/settings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QItemSelectionModel>
#include <QLineEdit>

#include <algorithm>

namespace nouns {

using shell::FieldNames;

namespace {

constexpr int CharactersOfField = 28;

constexpr shell::ListManagerNames Names = {.window = "NounHandler",
                                           .active = "nounmanager",
                                           .title = "Noun Manager",
                                           .word = "noun",
                                           .file = NounListFileName,
                                           .classes = "Declensions",
                                           .words = "Nouns",
                                           .classList = "NHDeclList",
                                           .wordList = "NHNounList",
                                           .add = "NHAdd",
                                           .room = "NHRoom",
                                           .copy = "NHCopy",
                                           .kept = "NHKept",
                                           .leave = "NHClose",
                                           .leaveText = "&Close"};

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

// A listed noun cannot be typed in: its Latin is shown as the learner wishes.
NounRecord asShown(NounRecord noun)
{
    for (std::string* const latin : {&noun.stem, &noun.obliqueStem, &noun.note})
        *latin = shell::latinText(*latin).toStdString();
    return noun;
}

constexpr std::string_view Fixed = "The nouns of the fourth and fifth declensions are fixed.";

struct Refusal {
    NounEdit edit;
    std::string_view message;
};

// Why a noun was not stored; %1 is the number of nouns that its paradigm holds.
// clang-format off
constexpr std::array Refusals = {
    Refusal{NounEdit::NoParadigm,    "Choose the paradigm first: masculine/feminine or neuter."},
    Refusal{NounEdit::FixedNouns,    Fixed},
    Refusal{NounEdit::NoStem,        "A noun needs a stem."},
    Refusal{NounEdit::NoObliqueStem, "A noun of the third declension needs an oblique stem as well."},
    Refusal{NounEdit::ListFull,      "This paradigm holds %1 nouns at the most."},
};
// clang-format on

std::string messageOf(NounEdit edit, int paradigm)
{
    const Refusal& refusal = *std::ranges::find(Refusals, edit, &Refusal::edit);
    return shell::fromUtf8(refusal.message)
        .replace(QStringLiteral("%1"), QString::number(mostNounsOf(paradigm)))
        .toStdString();
}

// Where none is chosen yet, the first arrow key in the opened list comes to the first paradigm.
class ParadigmBox : public shell::ChoiceBox {
public:
    using ChoiceBox::ChoiceBox;

    void showPopup() override
    {
        ChoiceBox::showPopup();
        if (currentIndex() < 0)
            view()->selectionModel()->clearCurrentIndex();
    }
};

// A text that cannot be changed stands on the window's own ground.
void setTypable(QLineEdit& box, bool typable)
{
    box.setReadOnly(!typable);
    QPalette colours = QApplication::palette(&box);
    colours.setBrush(QPalette::Disabled, QPalette::Base, colours.window());
    if (!typable)
        colours.setBrush(QPalette::Base, colours.window());
    box.setPalette(colours);
}

} // namespace

NounHandler::NounHandler() : ListManager(Names)
{
    for (const std::string_view name : Declensions)
        classes()->addItem(shell::fromUtf8(name));
    makeForm();
    connectForm();
    addFoot();
}

void NounHandler::makeForm()
{
    paradigms_ = shell::makeControl<ParadigmBox>(this, "NHParadigm");
    paradigms_->setPlaceholderText(QStringLiteral("choose one"));
    form()->addControl(paradigms_, "&Paradigm");
    form()->addBoxes(this, Fields);
    shell::setLeastWidth(*form()->box(Stem), CharactersOfField);
    for (const Field latin : {Stem, ObliqueStem, Note})
        shell::takeMacrons(*form()->box(latin));
}

void NounHandler::connectForm()
{
    const auto keepDraft = [this] { draft() = {typedNoun(), chosenParadigm()}; };
    connect(paradigms_, &QComboBox::currentIndexChanged, this, &NounHandler::chooseParadigm);
    connect(paradigms_, &QComboBox::activated, this, keepDraft);
    connect(form(), &shell::RecordForm::edited, this, keepDraft);
}

void NounHandler::listWords()
{
    rows_.clear();
    paradigms_->clear();
    for (const ListedParadigm& paradigm : paradigmsOf(classes()->currentRow()))
        listParadigm(paradigm);
    QStringList nouns;
    for (const auto& [paradigm, number] : rows_)
        nouns << shell::latinText(listedNominative(*paradigm, number));
    fillWords(nouns);
}

void NounHandler::listParadigm(const ListedParadigm& paradigm)
{
    if (paradigm.paradigm == FourthDeclension)
        countFourthDeclension();
    paradigms_->addItem(shell::fromUtf8(paradigm.name), static_cast<int>(paradigm.paradigm));
    for (int number = 1; number <= listedNounCount(paradigm.paradigm); ++number)
        rows_.push_back({&paradigm, number});
}

bool NounHandler::isNewRow(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) >= rows_.size();
}

int NounHandler::chosenParadigm() const
{
    return paradigms_->currentData().toInt();
}

void NounHandler::showWord(int row)
{
    if (isNewRow(row)) {
        showDraft();
    } else if (row < 0) {
        form()->show(textsOf({}));
    } else {
        const auto& [paradigm, number] = rows_.at(static_cast<std::size_t>(row));
        paradigms_->setCurrentIndex(paradigms_->findData(static_cast<int>(paradigm->paradigm)));
        showWhatCanBeDone();
        form()->show(textsOf(asShown(listedNoun(paradigm->paradigm, number))));
        return;
    }
    showWhatCanBeDone();
}

// Fixed nouns have no room beside them, and no line of theirs would be read.
void NounHandler::showWhatCanBeDone()
{
    const bool fixed = hasFixedNouns(chosenParadigm());
    const bool typable = isNewRow(words()->currentRow()) && !fixed;
    paradigms_->setEnabled(typable);
    for (QLineEdit* const box : form()->boxes())
        setTypable(*box, typable);
    showNote(fixed ? shell::fromUtf8(Fixed) : howToKeep());
    chooseParadigm();
}

// Without a paradigm the oblique stem may be typed: most nouns of the third declension need it.
void NounHandler::chooseParadigm()
{
    const int paradigm = chosenParadigm();
    form()->box(ObliqueStem)->setEnabled(paradigm == ThirdDeclension || paradigm == ParadigmUnchosen);
    if (paradigm == ParadigmUnchosen || hasFixedNouns(paradigm))
        showNoRoom();
    else
        showRoom(listedNounCount(paradigm), mostNounsOf(paradigm));
}

// The paradigm of a new noun until another is chosen: the last one. The third declension has none, as the
// gender decides there how a noun is declined.
int NounHandler::presetParadigm() const
{
    return paradigms_->findData(static_cast<int>(ThirdDeclension)) < 0 ? paradigms_->count() - 1 : -1;
}

std::optional<NounHandler::ListRow> NounHandler::nounIn(int row) const
{
    if (row < 0 || isNewRow(row))
        return {};
    return rows_.at(static_cast<std::size_t>(row));
}

std::optional<NounHandler::ListRow> NounHandler::chosenNoun() const
{
    return nounIn(words()->currentRow());
}

std::string NounHandler::lineOf(int row) const
{
    const auto noun = nounIn(row);
    return noun ? lineOfListedNoun(noun->paradigm->paradigm, noun->number) : std::string();
}

void NounHandler::changeEvent(QEvent* event)
{
    Window::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showWhatCanBeDone();
}

NounHandler::Draft& NounHandler::draft()
{
    return drafts_.at(static_cast<std::size_t>(classes()->currentRow()));
}

void NounHandler::showDraft()
{
    const int chosen = paradigms_->findData(draft().paradigm);
    paradigms_->setCurrentIndex(chosen < 0 ? presetParadigm() : chosen);
    form()->show(textsOf(draft().noun));
}

NounRecord NounHandler::typedNoun() const
{
    const auto texts = form()->take();
    return {.note = texts.at(Note),
            .stem = texts.at(Stem),
            .obliqueStem = texts.at(ObliqueStem),
            .meanings = {texts.at(English), texts.at(German), texts.at(French), texts.at(Spanish)}};
}

void NounHandler::add()
{
    shell::settings.ActiveWindowName = "NHadd";
    if (isNewRow(words()->currentRow()))
        storeNewNoun();
    else
        addNewRow();
}

void NounHandler::addNewRow()
{
    const auto newRow = static_cast<int>(rows_.size());
    if (words()->count() == newRow)
        words()->addItem(shell::fromUtf8(NewItem));
    words()->setCurrentRow(newRow);
    if (chosenParadigm() == ParadigmUnchosen)
        paradigms_->setFocus();
    else
        form()->goOnIn(Stem);
}

void NounHandler::storeNewNoun()
{
    const int paradigm = chosenParadigm();
    const NounEdit edit = addNoun(paradigm, typedNoun());
    if (edit == NounEdit::NoParadigm)
        paradigms_->setFocus();
    if (edit != NounEdit::Stored) {
        platform::current().showMessage(messageOf(edit, paradigm));
        return;
    }
    draft() = {};
    listWords();
    chooseLastOf(paradigm);
}

void NounHandler::chooseLastOf(int paradigm)
{
    const auto last = std::find_if(rows_.rbegin(), rows_.rend(),
                                   [&](const ListRow& row) { return row.paradigm->paradigm == paradigm; });
    words()->setCurrentRow(static_cast<int>(rows_.rend() - last) - 1);
    words()->setFocus();
}

} // namespace nouns
