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

// On a low screen so many lines are seen at the least, with the headings.
constexpr int LeastLines = 5;

// To how many characters the lines of headings are shortened, until the columns fit.
constexpr std::array LinesOfHeadings = {14, 12};

} // namespace

CellTable::CellTable(QWidget* parent) : QTableView(parent), cells_(new CellModel(this))
{
    setModel(cells_);
    setItemDelegate(new CellDelegate(this));
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
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
    fitColumns();
}

// Headers and bars that were never shown may want a little less than they get.
QSize CellTable::sizeHint() const
{
    const int frame = 2 * frameWidth();
    const bool allColumnsSeen = horizontalHeader()->length() <= roomForColumns();
    const int bar = allColumnsSeen ? 0 : horizontalScrollBar()->sizeHint().height();
    return {frame + verticalHeader()->sizeHint().width() + unbroken_ + roomForScrollBar(*this) +
                shell::SmallSpace,
            frame + horizontalHeader()->sizeHint().height() + verticalHeader()->length() + bar};
}

QSize CellTable::minimumSizeHint() const
{
    return {QTableView::minimumSizeHint().width(),
            std::min(LeastLines * fontMetrics().lineSpacing(), sizeHint().height())};
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
    unbroken_ = horizontalHeader()->length();
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
