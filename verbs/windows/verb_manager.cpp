#include "verbs/windows/verb_manager.h"

#include "platform/platform.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/layout.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "verbs/verb_edits.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace verbs {

using shell::ChoiceList;
using shell::FieldNames;

namespace {

constexpr QSize LargestBlock{110, 32};
constexpr int ListCharacters = 30;
constexpr int StemCharacters = 14;
constexpr int PreviewCharacters = 12;
constexpr int LinesOfKept = 2;

struct ClassRow {
    VerbClass verbClass;
    std::string_view name;
};

// The rows of `VMConjList`, in the order of the list file.
constexpr std::array<ClassRow, LastRegularClass> Classes = {{{FirstConjugation, "First Conjugation"},
                                                             {SecondConjugation, "Second Conjugation"},
                                                             {ThirdConjugation, "Third Conjugation"},
                                                             {ThirdIoConjugation, "Third -io Conjugation"},
                                                             {FourthConjugation, "Fourth Conjugation"}}};

// The boxes of the form: the stems of a verb, then its translations.
enum Field { PresentStem, PerfectStem, SupineStem, BaseForm, Past, PastParticiple, PresentParticiple };

constexpr std::array Fields = {FieldNames{"VerbManagerLatinForms0", "&Present stem"},
                               FieldNames{"VerbManagerLatinForms1", "P&erfect stem"},
                               FieldNames{"VerbManagerLatinForms2", "&Supine stem"},
                               FieldNames{"VerbManagerGermanForms0", "&Base form"},
                               FieldNames{"VerbManagerGermanForms1", "Pas&t"},
                               FieldNames{"VerbManagerGermanForms2", "Past pa&rticiple"},
                               FieldNames{"VerbManagerGermanForms3", "Prese&nt participle"}};

std::array<std::string_view, Fields.size()> textsOf(const VerbRecord& verb)
{
    const auto& [baseForm, past, pastParticiple, presentParticiple] = verb.translations;
    return {verb.presentStem, verb.perfectStem, verb.supineStem, baseForm, past,
            pastParticiple,   presentParticiple};
}

// The label behind a stem that shows a form of it, and that form's ending.
struct Preview {
    std::string_view label;
    std::string_view ending;
};

constexpr std::array<Preview, 3> Previews = {{{"LatInfinitive", "are"}, // sic: whatever class is chosen
                                              {"LatPerfect", "i"},
                                              {"LatPastParticiple", "us"}}};

constexpr std::string_view Kept =
    "Changes last until the program ends. To keep one, copy the verb's line into "
    "\"verbs.cfg\" and count new verbs there.";

constexpr std::string_view NewItem = "** Add New Item Here **";

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
    classes_ = shell::makeChoiceList(this, "VMConjList");
    classes_->setAccessibleName(QStringLiteral("Conjugations"));
    for (const ClassRow& row : Classes)
        classes_->addItem(shell::fromUtf8(row.name));
    verbs_ = shell::makeChoiceList(this, "VMFormsList");
    verbs_->setAccessibleName(QStringLiteral("Verbs"));
    shell::setLeastWidth(*verbs_, ListCharacters);
    form_ = new shell::RecordForm;
    form_->addBoxes(this, Fields);
    for (std::size_t stem = 0; stem < previews_.size(); ++stem) {
        previews_.at(stem) = shell::makeLabel(this, Previews.at(stem).label);
        shell::takeMacrons(*form_->box(stem));
        shell::setLeastWidth(*form_->box(stem), StemCharacters);
        shell::setLeastWidth(*previews_.at(stem), PreviewCharacters);
    }
    add_ = shell::makeButton(this, "VerbManagerAdd", "&Add");
    room_ = shell::makeLabel(this, "VMRoom");
    copy_ = shell::makeButton(this, "VMCopy", "Cop&y Line");
    kept_ = shell::makeLabel(this, "VMKept", shell::NoteType);
    kept_->setText(shell::fromUtf8(Kept));
    back_ = shell::makeButton(this, "VerbManagerBack", "Bac&k");
    cancel_ = shell::makeButton(this, "VerbMangerCancel", "En&d Program");
}

void VerbManager::layOut()
{
    for (std::size_t stem = 0; stem < previews_.size(); ++stem)
        form_->addWidget(previews_.at(stem), static_cast<int>(stem), 2);
    form_->setColumnStretch(1, 2);
    form_->setColumnStretch(2, 1);
    classes_->fitRows();
    shell::wrapText(*kept_, LinesOfKept);
    QBoxLayout* const lists = shell::columnOf(shell::MediumSpace, {classes_, {verbs_, 1}});
    QBoxLayout* const record =
        shell::columnOf(shell::MediumSpace, {form_, shell::buttonRow({add_, room_}, {copy_}), kept_,
                                             shell::Part::gap(1), shell::buttonRow({}, {back_, cancel_})});
    shell::setContent(centredBlock(LargestBlock), shell::FormMargins,
                      shell::rowOf(shell::WideSpace, {{lists, 2}, {record, 5}}));
}

void VerbManager::connectControls()
{
    connect(classes_, &ChoiceList::currentRowChanged, this, &VerbManager::listVerbs);
    connect(verbs_, &ChoiceList::currentRowChanged, this, &VerbManager::showVerb);
    for (std::size_t stem = 0; stem < previews_.size(); ++stem)
        connect(form_->box(stem), &QLineEdit::textChanged, this, &VerbManager::showPreviews);
    connect(add_, &QPushButton::clicked, this, &VerbManager::addVerb);
    connect(copy_, &QPushButton::clicked, this, &VerbManager::copyLine);
    connect(back_, &QPushButton::clicked, this, &VerbManager::left);
    connect(cancel_, &QPushButton::clicked, this, &VerbManager::endRequested);
}

void VerbManager::open()
{
    classes_->setCurrentRow(0);
    listVerbs();
    showInMainWindowState();
    classes_->setFocus();
}

int VerbManager::chosenClass() const
{
    return Classes.at(static_cast<std::size_t>(classes_->currentRow())).verbClass;
}

int VerbManager::chosenVerb() const
{
    return verbs_->currentRow() + 1;
}

VerbRecord VerbManager::typedVerb() const
{
    const auto texts = form_->take();
    return {.presentStem = texts.at(PresentStem),
            .perfectStem = texts.at(PerfectStem),
            .supineStem = texts.at(SupineStem),
            .translations = {texts.at(BaseForm), texts.at(Past), texts.at(PastParticiple),
                             texts.at(PresentParticiple)}};
}

void VerbManager::listVerbs()
{
    verbs_->clear();
    const int verbClass = chosenClass();
    for (int number = 1; number <= verbList.Count[verbClass]; ++number)
        verbs_->addItem(shell::latinText(listedInfinitive(verbClass, number)));
    verbs_->addItem(shell::fromUtf8(NewItem));
    room_->setText(QStringLiteral("%1 of %2").arg(verbList.Count[verbClass]).arg(MostVerbs));
    verbs_->setCurrentRow(0);
}

void VerbManager::showVerb(int row)
{
    if (row < 0)
        return;
    const bool isNew = row == verbs_->count() - 1;
    form_->show(textsOf(isNew ? VerbRecord{} : verbAt(chosenClass(), row + 1)));
    copy_->setEnabled(!lineOfListedVerb(chosenClass(), row + 1).empty());
    showPreviews();
}

void VerbManager::showPreviews()
{
    for (std::size_t stem = 0; stem < previews_.size(); ++stem) {
        std::string form = form_->box(stem)->text().toStdString();
        previews_.at(stem)->setText(shell::latinText(form.append(Previews.at(stem).ending)));
    }
}

void VerbManager::copyLine()
{
    QGuiApplication::clipboard()->setText(
        shell::fromUtf8(lineOfListedVerb(chosenClass(), verbs_->currentRow() + 1)));
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
    listVerbs();
    verbs_->setCurrentRow(row);
}

} // namespace verbs
