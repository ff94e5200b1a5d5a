#include "verbs/windows/verb_manager.h"

#include "platform/platform.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/latin_text.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"
#include "verbs/verb_edits.h"
#include "verbs/verb_list_file.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace verbs {

using shell::FieldNames;

namespace {

constexpr int StemCharacters = 14;
constexpr int PreviewCharacters = 12;

constexpr shell::ListManagerNames Names = {.window = "VerbManager",
                                           .active = "verbmanager",
                                           .title = "Verbs",
                                           .word = "verb",
                                           .file = VerbListFileName,
                                           .classes = "Conjugations",
                                           .words = "Verbs",
                                           .classList = "VMConjList",
                                           .wordList = "VMFormsList",
                                           .add = "VerbManagerAdd",
                                           .room = "VMRoom",
                                           .copy = "VMCopy",
                                           .kept = "VMKept",
                                           .leave = "VerbManagerBack",
                                           .leaveText = "Bac&k"};

struct ClassRow {
    VerbClass verbClass;
    std::string_view name;
};

// The rows of the classes, in the order of the list file.
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

constexpr std::string_view NoPresentStem = "A verb needs a present stem.";

static_assert(MostVerbs == 15);
constexpr std::string_view ListFull = "A conjugation holds fifteen verbs at the most.";

} // namespace

VerbManager::VerbManager() : ListManager(Names)
{
    for (const ClassRow& row : Classes)
        classes()->addItem(shell::fromUtf8(row.name));
    makeForm();
    makePreviews();
    addEndOfProgram();
    connect(form(), &shell::RecordForm::edited, this, [this] {
        drafts_[{chosenClass(), chosenVerb()}] = typedVerb();
    });
}

void VerbManager::makeForm()
{
    form()->addBoxes(this, Fields);
    form()->setColumnStretch(1, 2);
    form()->setColumnStretch(2, 1);
}

void VerbManager::makePreviews()
{
    for (std::size_t stem = 0; stem < previews_.size(); ++stem) {
        QLineEdit* const box = form()->box(stem);
        shell::takeMacrons(*box);
        shell::setLeastWidth(*box, StemCharacters);
        connect(box, &QLineEdit::textChanged, this, &VerbManager::showPreviews);
        previews_.at(stem) = shell::makeLabel(this, Previews.at(stem).label);
        shell::setLeastWidth(*previews_.at(stem), PreviewCharacters);
        form()->addWidget(previews_.at(stem), static_cast<int>(stem), 2);
    }
}

void VerbManager::addEndOfProgram()
{
    QBoxLayout* const foot = addFoot();
    QPushButton* const end = shell::makeButton(this, "VerbMangerCancel", "En&d Program");
    foot->addWidget(end);
    connect(end, &QPushButton::clicked, this, &VerbManager::endRequested);
}

int VerbManager::chosenClass() const
{
    return Classes.at(static_cast<std::size_t>(classes()->currentRow())).verbClass;
}

int VerbManager::chosenVerb() const
{
    return words()->currentRow() + 1;
}

VerbRecord VerbManager::typedVerb() const
{
    const auto texts = form()->take();
    return {.presentStem = texts.at(PresentStem),
            .perfectStem = texts.at(PerfectStem),
            .supineStem = texts.at(SupineStem),
            .translations = {texts.at(BaseForm), texts.at(Past), texts.at(PastParticiple),
                             texts.at(PresentParticiple)}};
}

void VerbManager::listWords()
{
    const int verbClass = chosenClass();
    const int count = verbList.Count[verbClass];
    QStringList verbs;
    for (int number = 1; number <= count; ++number)
        verbs << shell::latinText(listedInfinitive(verbClass, number));
    fillWords(verbs << shell::fromUtf8(NewItem));
    showRoom(count, MostVerbs);
}

VerbRecord VerbManager::verbToShow() const
{
    const auto draft = drafts_.find({chosenClass(), chosenVerb()});
    if (draft != drafts_.end())
        return draft->second;
    const bool isNew = chosenVerb() == words()->count();
    return isNew ? VerbRecord{} : verbAt(chosenClass(), chosenVerb());
}

void VerbManager::showWord(int /*row*/)
{
    const VerbRecord verb = verbToShow();
    form()->show(textsOf(verb));
    showPreviews();
}

void VerbManager::showPreviews()
{
    for (std::size_t stem = 0; stem < previews_.size(); ++stem) {
        std::string text = form()->box(stem)->text().toStdString();
        previews_.at(stem)->setText(shell::latinText(text.append(Previews.at(stem).ending)));
    }
}

std::string VerbManager::lineOf(int row) const
{
    return lineOfListedVerb(chosenClass(), row + 1);
}

void VerbManager::add()
{
    const int row = words()->currentRow();
    const VerbEdit edit = editVerb(chosenClass(), row + 1, typedVerb());
    if (edit != VerbEdit::Stored) {
        platform::current().showMessage(std::string(edit == VerbEdit::ListFull ? ListFull : NoPresentStem));
        return;
    }
    drafts_.erase({chosenClass(), row + 1});
    listWords();
    words()->setCurrentRow(row);
}

} // namespace verbs
