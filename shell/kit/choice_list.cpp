#include "shell/kit/choice_list.h"

#include "shell/kit/window.h"

#include <QKeyEvent>

namespace shell {

namespace {

bool beginsChoice(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
}

} // namespace

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { Q_EMIT rowChosen(chosenRow()); });
    connect(this, &QListWidget::itemDoubleClicked, this, &ChoiceList::activateChosenRow);
}

int ChoiceList::chosenRow() const
{
    const QList<QListWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? -1 : row(chosen.front());
}

// The first arrow key chooses the first row, where Qt would go past it.
void ChoiceList::keyPressEvent(QKeyEvent* event)
{
    if (isEnter(*event))
        activateChosenRow();
    else if (beginsChoice(event->key()) && chosenRow() < 0)
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
}

void ChoiceList::activateChosenRow()
{
    if (chosenRow() >= 0)
        Q_EMIT rowActivated(chosenRow());
}

} // namespace shell
