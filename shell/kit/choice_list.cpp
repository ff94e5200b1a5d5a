#include "shell/kit/choice_list.h"

#include "shell/kit/controls.h"
#include "shell/kit/type.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

namespace shell {

namespace {

constexpr int AirOfRow = 2;
constexpr int FewestRows = 5;

// Gives each row air above and below its text, so that no click falls between two rows.
class AiryRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * AirOfRow);
    }
};

bool beginsChoice(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_Home;
}

} // namespace

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new AiryRows(this));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        Q_EMIT rowChosen(chosenRow());
        scrollTo(currentIndex());
    });
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
    if (isEnter(*event) && chosenRow() < 0)
        Q_EMIT unchosenRowEntered(currentRow());
    else if (isEnter(*event))
        activateChosenRow();
    else if (beginsChoice(event->key()) && chosenRow() < 0)
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const
{
    return index.isValid() ? QListWidget::selectionCommand(index, event) : QItemSelectionModel::NoUpdate;
}

// The lowest row that is seen is seen whole: less than the height of one stays empty below it.
void ChoiceList::updateGeometries()
{
    const int row = std::max(1, sizeHintForRow(0));
    const int room = viewport()->height() + viewportMargins().bottom();
    const int empty = room > row && count() * row > room ? room % row : 0;
    if (empty != viewportMargins().bottom())
        setViewportMargins(0, 0, 0, empty);
    QListWidget::updateGeometries();
}

void ChoiceList::activateChosenRow()
{
    if (chosenRow() >= 0)
        Q_EMIT rowActivated(chosenRow());
}

ListOfItsRows::ListOfItsRows(QWidget* parent) : ChoiceList(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    connect(model(), &QAbstractItemModel::rowsInserted, this, &ListOfItsRows::updateGeometry);
}

QSize ListOfItsRows::sizeHint() const
{
    return roomForRows(count());
}

QSize ListOfItsRows::minimumSizeHint() const
{
    return roomForRows(std::min(count(), FewestRows));
}

// The scroll bar has its room also while all rows are seen: the longest of them never comes under it.
QSize ListOfItsRows::roomForRows(int rows) const
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {sizeHintForColumn(0) + bar + SmallSpace + 2 * frameWidth(),
            rows * sizeHintForRow(0) + 2 * frameWidth()};
}

} // namespace shell
