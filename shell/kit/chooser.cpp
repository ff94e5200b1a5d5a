#include "shell/kit/chooser.h"

#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/type.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace shell {

namespace {

bool movesInList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
           key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

Chooser::Chooser(const ChooserNames& names, std::span<const Caption> captions,
                 std::span<const LanguageTexts> rows)
    : FramedWindow(names.window, names.active, names.frame), captions_(captions), rows_(rows),
      list_(makeControl<ListOfItsRows>(frame(), names.list)), heading_(makeLabelOf(list_, "ChooserHeading")),
      ok_(makeButton(frame(), names.ok)), cancel_(makeButton(frame(), names.cancel))
{
    setType(*list_, ListType);
    setBoldType(*heading_, HeadingType);
    layOut();
    connectControls();
    closeOnEscape();
}

void Chooser::layOut()
{
    setContent(frame(), FormMargins,
               columnOf(MediumSpace, {heading_, list_, buttonRow({}, {ok_, cancel_}), Part::gap()}));
}

void Chooser::connectControls()
{
    connect(list_, &ChoiceList::rowChosen, this,
            [this](int row) { ok_->setEnabled(row >= 0 || beginsAtOk()); });
    connect(list_, &ChoiceList::rowActivated, this, &Chooser::choose);
    connect(list_, &ChoiceList::unchosenRowEntered, this, &Chooser::choose);
    connect(ok_, &QPushButton::clicked, this, [this] { choose(list_->chosenRow()); });
    connect(cancel_, &QPushButton::clicked, this, &Chooser::left);
    ok_->installEventFilter(this);
}

// A button would take the arrow keys for steps to the next one.
bool Chooser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != ok_ || event->type() != QEvent::KeyPress ||
        !movesInList(static_cast<QKeyEvent*>(event)->key()))
        return FramedWindow::eventFilter(watched, event);
    QCoreApplication::sendEvent(list_, event);
    return true;
}

void Chooser::open()
{
    fill();
    showFrame();
    if (beginsAtOk())
        ok_->setFocus();
    else
        list_->setFocus();
}

void Chooser::fill()
{
    applyCurrentOrDesignedCaptions(*this, captions_);
    fillList(*list_, rows_);
    list_->setCurrentRow(0, beginsAtOk() ? QItemSelectionModel::Select : QItemSelectionModel::NoUpdate);
    list_->setAccessibleName(heading_->text());
    ok_->setEnabled(beginsAtOk());
    fitFrame();
    beginChoice();
}

void Chooser::choose(int row)
{
    if (isVisible() && row >= 0)
        Q_EMIT chosen(row);
}

} // namespace shell
