#include "shell/kit/chooser.h"

#include "shell/kit/captions.h"
#include "shell/kit/choice_list.h"
#include "shell/kit/controls.h"
#include "shell/kit/layout.h"
#include "shell/kit/type.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace shell {

namespace {

constexpr double RowType = 1.2;

// Room for every row, up to most of the screen's height; a longer list scrolls.
QSize roomForRows(const ChoiceList& list)
{
    int height = 2 * list.frameWidth();
    for (int row = 0; row < list.count(); ++row)
        height += list.sizeHintForRow(row);
    const int width = list.sizeHintForColumn(0) + 2 * list.frameWidth() + WideSpace;
    return {width, std::min(height, list.screen()->geometry().height() * 7 / 10)};
}

} // namespace

Chooser::Chooser(const ChooserNames& names, std::span<const Caption> captions,
                 std::span<const LanguageTexts> rows)
    : FramedWindow(names.window, names.active, names.frame), captions_(captions), rows_(rows),
      list_(makeControl<ChoiceList>(frame(), names.list)), ok_(makeButton(frame(), names.ok)),
      cancel_(makeButton(frame(), names.cancel))
{
    setType(*list_, RowType);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layOut();
    connectControls();
    closeOnEscape();
}

void Chooser::layOut()
{
    setContent(frame(), FormMargins, columnOf(MediumSpace, {list_, buttonRow({}, {ok_, cancel_})}));
}

void Chooser::connectControls()
{
    connect(list_, &ChoiceList::rowChosen, this,
            [this](int row) { ok_->setEnabled(row >= 0 || beginsAtOk()); });
    connect(list_, &ChoiceList::rowActivated, this, &Chooser::choose);
    connect(list_, &ChoiceList::unchosenRowEntered, this, &Chooser::choose);
    connect(ok_, &QPushButton::clicked, this, [this] { choose(list_->chosenRow()); });
    connect(cancel_, &QPushButton::clicked, this, &Chooser::left);
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
    list_->setAccessibleName(windowTitle());
    ok_->setEnabled(beginsAtOk());
    list_->setMinimumSize(roomForRows(*list_));
    fitFrame();
    beginChoice();
}

void Chooser::choose(int row)
{
    if (isVisible() && row >= 0)
        Q_EMIT chosen(row);
}

} // namespace shell
