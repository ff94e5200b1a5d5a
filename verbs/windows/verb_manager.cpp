#include "verbs/windows/verb_manager.h"

#include "platform/platform.h"
#include "shell/kit/controls.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "verbs/verb_edits.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace verbs {

namespace {

constexpr QSize LargestBlock{130, 32};
constexpr int ListCharacters = 26;
constexpr int StemCharacters = 18;
constexpr int PreviewCharacters = 14;

struct ClassRow {
    VerbClass verbClass;
    const char* name;
};

// The rows of `VMConjList`, in the order of the list file.
constexpr std::array<ClassRow, LastRegularClass> Classes = {{{FirstConjugation, "First Conjugation"},
                                                             {SecondConjugation, "Second Conjugation"},
                                                             {ThirdConjugation, "Third Conjugation"},
                                                             {ThirdIoConjugation, "Third -io Conjugation"},
                                                             {FourthConjugation, "Fourth Conjugation"}}};

// The stems of a verb, the label that previews a form, and that form's ending. The infinitive is meant to end
// in "are" whatever class is chosen.
struct StemField {
    const char* caption;
    const char* preview;
    const char* ending;
};

constexpr std::array<StemField, 3> StemFields = {{{"&Present stem", "LatInfinitive", "are"},
                                                  {"P&erfect stem", "LatPerfect", "i"},
                                                  {"&Supine stem", "LatPastParticiple", "us"}}};

constexpr std::array TranslationCaptions = {"&Base form", "Pas&t", "Past pa&rticiple", "Prese&nt participle"};

constexpr auto NewItem = "** Add New Item Here **";
constexpr int NewVerb = -1;

std::string textOf(const QLineEdit* field)
{
    return field->text().toStdString();
}

} // namespace

VerbManager::VerbManager() : Window("VerbManager", "verbmanager")
{
    setWindowTitle(QStringLiteral("Verbs"));
    makeControls();
    layOut();
    connectControls();
    closeOnEscape();
}

// In the order in which Tab goes through them.
void VerbManager::makeControls()
{
    classes_ = shell::makeControl<QListWidget>(this, "VMConjList");
    classes_->setAccessibleName(QStringLiteral("Conjugations"));
    verbs_ = shell::makeControl<QListWidget>(this, "VMFormsList");
    verbs_->setAccessibleName(QStringLiteral("Verbs"));
    for (std::size_t i = 0; i < latin_.size(); ++i) {
        latin_.at(i) = new QLineEdit(this);
        latin_.at(i)->setObjectName(QStringLiteral("VerbManagerLatinForms%1").arg(i));
        previews_.at(i) = shell::makeLabel(this, StemFields.at(i).preview);
        shell::setLeastWidth(*latin_.at(i), StemCharacters);
        shell::setLeastWidth(*previews_.at(i), PreviewCharacters);
    }
    for (std::size_t i = 0; i < translations_.size(); ++i) {
        translations_.at(i) = new QLineEdit(this);
        translations_.at(i)->setObjectName(QStringLiteral("VerbManagerGermanForms%1").arg(i));
    }
    add_ = shell::makeButton(this, "VerbManagerAdd");
    add_->setText(QStringLiteral("&Add"));
    cancel_ = shell::makeButton(this, "VerbMangerCancel");
    cancel_->setText(QStringLiteral("En&d Program"));
    for (QListWidget* const list : {classes_, verbs_})
        shell::setLeastWidth(*list, ListCharacters);
    for (const ClassRow& row : Classes)
        classes_->addItem(QLatin1String(row.name));
}

void VerbManager::layOut()
{
    auto* const right = new QVBoxLayout;
    right->addLayout(fieldGrid());
    right->addStretch();
    right->addLayout(buttonRow());

    auto* const columns = new QHBoxLayout(centredBlock(LargestBlock));
    columns->setContentsMargins(shell::LargeSpace, shell::LargeSpace, shell::LargeSpace, shell::LargeSpace);
    columns->setSpacing(shell::LargeSpace);
    columns->addWidget(classes_, 2);
    columns->addWidget(verbs_, 2);
    columns->addLayout(right, 5);
}

QGridLayout* VerbManager::fieldGrid()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(shell::MediumSpace);
    grid->setVerticalSpacing(shell::SmallSpace);
    int row = 0;
    for (std::size_t i = 0; i < latin_.size(); ++i, ++row) {
        shell::addField(*grid, row, StemFields.at(i).caption, latin_.at(i));
        grid->addWidget(previews_.at(i), row, 2);
    }
    for (std::size_t i = 0; i < translations_.size(); ++i, ++row)
        shell::addField(*grid, row, TranslationCaptions.at(i), translations_.at(i));
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 1);
    return grid;
}

QBoxLayout* VerbManager::buttonRow()
{
    auto* const row = new QHBoxLayout;
    row->addWidget(add_);
    row->addStretch();
    row->addWidget(cancel_);
    return row;
}

void VerbManager::connectControls()
{
    connect(classes_, &QListWidget::currentRowChanged, this, &VerbManager::listVerbs);
    connect(verbs_, &QListWidget::currentRowChanged, this, &VerbManager::showVerb);
    for (const QLineEdit* const field : latin_) {
        connect(field, &QLineEdit::textChanged, this, &VerbManager::showPreviews);
        connect(field, &QLineEdit::textEdited, this, &VerbManager::keepDraft);
    }
    for (const QLineEdit* const field : translations_)
        connect(field, &QLineEdit::textEdited, this, &VerbManager::keepDraft);
    connect(add_, &QPushButton::clicked, this, &VerbManager::addVerb);
    connect(cancel_, &QPushButton::clicked, this, &VerbManager::endRequested);
}

void VerbManager::open()
{
    std::erase_if(drafts_, [](const auto& draft) { return draft.first.second != NewVerb; });
    classes_->setCurrentRow(0);
    listVerbs();
    showInMainWindowState();
    classes_->setFocus();
}

int VerbManager::chosenClass() const
{
    return Classes.at(static_cast<std::size_t>(classes_->currentRow())).verbClass;
}

VerbManager::DraftPlace VerbManager::chosenPlace() const
{
    const int row = verbs_->currentRow();
    return {chosenClass(), row == verbs_->count() - 1 ? NewVerb : row};
}

VerbRecord VerbManager::typedVerb() const
{
    VerbRecord verb{textOf(latin_[0]), textOf(latin_[1]), textOf(latin_[2]), {}};
    for (std::size_t i = 0; i < translations_.size(); ++i)
        verb.translations.at(i) = textOf(translations_.at(i));
    return verb;
}

void VerbManager::listVerbs()
{
    verbs_->clear();
    const int verbClass = chosenClass();
    for (int number = 1; number <= verbList.Count[verbClass]; ++number)
        verbs_->addItem(shell::fromUtf8(listedInfinitive(verbClass, number)));
    verbs_->addItem(QLatin1String(NewItem));
    verbs_->setCurrentRow(0);
}

void VerbManager::showVerb(int row)
{
    if (row < 0)
        return;
    const auto [verbClass, place] = chosenPlace();
    const VerbRecord listed = place == NewVerb ? VerbRecord{} : verbAt(verbClass, row + 1);
    const auto draft = drafts_.find({verbClass, place});
    const VerbRecord& verb = draft == drafts_.end() ? listed : draft->second;
    latin_[0]->setText(shell::fromUtf8(verb.presentStem));
    latin_[1]->setText(shell::fromUtf8(verb.perfectStem));
    latin_[2]->setText(shell::fromUtf8(verb.supineStem));
    for (std::size_t i = 0; i < translations_.size(); ++i)
        translations_.at(i)->setText(shell::fromUtf8(verb.translations.at(i)));
    showPreviews();
}

void VerbManager::showPreviews()
{
    for (std::size_t i = 0; i < latin_.size(); ++i)
        previews_.at(i)->setText(latin_.at(i)->text() + QLatin1String(StemFields.at(i).ending));
}

void VerbManager::keepDraft()
{
    if (verbs_->currentRow() >= 0)
        drafts_.insert_or_assign(chosenPlace(), typedVerb());
}

void VerbManager::addVerb()
{
    const int row = verbs_->currentRow();
    if (row < 0)
        return;
    switch (editVerb(chosenClass(), row + 1, typedVerb())) {
    case VerbEdit::NoPresentStem:
        platform::current().showMessage("A verb needs a present stem.");
        return;
    case VerbEdit::ListFull:
        platform::current().showMessage("A conjugation holds fifteen verbs at the most.");
        return;
    case VerbEdit::Stored:
        break;
    }
    drafts_.erase(chosenPlace());
    listVerbs();
    verbs_->setCurrentRow(row);
}

} // namespace verbs
