#include "progress/windows/cell_table.h"

#include "progress/windows/cell_delegate.h"
#include "progress/windows/cell_model.h"
#include "progress/windows/scroll_bar_room.h"
#include "shell/kit/measure.h"
#include "shell/kit/type.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace progress {

namespace {

// On a low screen so many rows are seen at the least.
constexpr int LeastRows = 6;

// To how many characters the lines of headings are shortened, until the columns fit. The table asks for the
// room of the first, and leaves headings whole where it has more.
constexpr std::array LinesOfHeadings = {14, 12};

} // namespace

CellTable::CellTable(QWidget* parent) : QTableView(parent), cells_(new CellModel(this))
{
    setModel(cells_);
    setItemDelegate(new CellDelegate(this));
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
        header->setHighlightSections(false);
        shell::setType(*header, 1);
    }
    shell::keepMeasure(*this, "cells", [this](shell::Growth) { fitCells(); });
}

void CellTable::fitCells()
{
    resizeRowsToContents();
    cells_->breakHeadings(LinesOfHeadings.front());
    resizeColumnsToContents();
    widthWished_ = horizontalHeader()->length();
    fitColumns();
}

QSize CellTable::sizeHint() const
{
    const int headings = verticalHeader()->sizeHint().width();
    return {2 * frameWidth() + headings + widthWished_ + roomForScrollBar(*this) + shell::SmallSpace,
            heightOfRows(verticalHeader()->count())};
}

QSize CellTable::minimumSizeHint() const
{
    return {QTableView::minimumSizeHint().width(),
            heightOfRows(std::min(LeastRows, verticalHeader()->count()))};
}

// Headers and bars that were never shown may want a little less than they get.
int CellTable::heightOfRows(int rows) const
{
    const bool allColumnsSeen = horizontalHeader()->length() <= roomForColumns();
    int height = 2 * frameWidth() + horizontalHeader()->sizeHint().height();
    height += allColumnsSeen ? 0 : horizontalScrollBar()->sizeHint().height();
    for (int row = 0; row < rows; ++row)
        height += rowHeight(row);
    return height;
}

void CellTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitColumns();
}

int CellTable::roomForColumns() const
{
    return width() - 2 * frameWidth() - verticalHeader()->sizeHint().width() - roomForScrollBar(*this);
}

void CellTable::fitColumns()
{
    cells_->joinHeadings();
    resizeColumnsToContents();
    for (const int characters : LinesOfHeadings) {
        if (horizontalHeader()->length() <= roomForColumns())
            break;
        cells_->breakHeadings(characters);
        resizeColumnsToContents();
    }
    updateGeometries();
    updateGeometry();
}

} // namespace progress
