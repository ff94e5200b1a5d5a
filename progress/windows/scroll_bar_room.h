#pragma once

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace progress {

/// The width that a table loses to its scroll bar where it has more rows than room. Columns that are fitted
/// without it stay as they are whether it is there or not.
inline int roomForScrollBar(const QAbstractScrollArea& table)
{
    return table.verticalScrollBar()->sizeHint().width() +
           table.style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarSpacing, nullptr, &table);
}

} // namespace progress
