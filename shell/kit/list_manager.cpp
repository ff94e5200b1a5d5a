#include "shell/kit/list_manager.h"

#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/passing_note.h"
#include "shell/kit/record_form.h"
#include "shell/kit/text.h"
#include "shell/kit/type.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace shell {

namespace {

constexpr QSize LargestBlock{110, 36};
constexpr int ListCharacters = 30;
constexpr int LinesOfKept = 3;

} // namespace

ListManager::ListManager(const ListManagerNames& names)
    : Window(names.window, names.active), names_(names),
      classes_(makeControl<ListOfItsRows>(this, names.classList)),
      words_(makeChoiceList(this, names.wordList)), form_(new RecordForm)
{
    setWindowTitle(fromUtf8(names.title));
    classes_->setAccessibleName(fromUtf8(names.classes));
    setType(*classes_, ListType);
    words_->setAccessibleName(fromUtf8(names.words));
    setLeastWidth(*words_, ListCharacters);
    closeOnEscape();
}

QBoxLayout* ListManager::addFoot()
{
    add_ = makeButton(this, names_.add, "&Add");
    room_ = makeLabel(this, names_.room);
    copy_ = makeButton(this, names_.copy, "Cop&y Line");
    kept_ = makeLabel(this, names_.kept, NoteType);
    wrapText(*kept_, LinesOfKept);
    showNote(howToKeep());
    leave_ = makeButton(this, names_.leave, names_.leaveText);
    connectControls();
    return layOut();
}

QBoxLayout* ListManager::layOut()
{
    QBoxLayout* const foot = buttonRow({}, {leave_});
    QBoxLayout* const lists = columnOf(MediumSpace, {classes_, {words_, 1}});
    QBoxLayout* const record = columnOf(MediumSpace, {form_, buttonRow({add_, room_}, {copy_}), kept_,
                                                      Part::space(HairSpace), foot, Part::gap(1)});
    setContent(centredBlock(LargestBlock), FormMargins, rowOf(WideSpace, {{lists, 2}, {record, 5}}));
    return foot;
}

void ListManager::connectControls()
{
    connect(classes_, &ChoiceList::currentRowChanged, this, &ListManager::listWords);
    connect(words_, &ChoiceList::currentRowChanged, this, &ListManager::showChosen);
    connect(add_, &QPushButton::clicked, this, &ListManager::add);
    connect(copy_, &QPushButton::clicked, this, &ListManager::copyLine);
    connect(leave_, &QPushButton::clicked, this, &ListManager::left);
}

void ListManager::open()
{
    classes_->setCurrentRow(0);
    listWords();
    showInMainWindowState();
    classes_->setFocus();
}

// Shows the first word once, and none while the list is being filled.
void ListManager::fillWords(const QStringList& words)
{
    const QSignalBlocker filling(words_);
    words_->clear();
    words_->addItems(words);
    words_->setCurrentRow(words.isEmpty() ? -1 : 0);
    showChosen(words_->currentRow());
}

void ListManager::showChosen(int row)
{
    showWord(row);
    copy_->setEnabled(!lineOf(row).empty());
}

void ListManager::copyLine()
{
    QGuiApplication::clipboard()->setText(fromUtf8(lineOf(words_->currentRow())));
    showPassingNote(*copy_, QStringLiteral("Copied"));
}

void ListManager::showRoom(int listed, int most)
{
    room_->setText(QStringLiteral("%1 of %2").arg(listed).arg(most));
}

void ListManager::showNoRoom()
{
    room_->clear();
}

void ListManager::showNote(const QString& note)
{
    kept_->setText(note);
}

QString ListManager::howToKeep() const
{
    return QStringLiteral(
               "Changes last until the program ends. To keep one, copy the %1's line into \"%2\". For "
               "each new %1, raise the number at the head of its section by one.")
        .arg(fromUtf8(names_.word), fromUtf8(names_.file));
}

} // namespace shell
