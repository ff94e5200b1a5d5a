#include "progress/windows/cell_delegate.h"

#include "progress/windows/shade.h"

#include <QPainter>

namespace progress {

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    constexpr int frameWidth = 2;
    QStyleOptionViewItem plain = option;
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
    // The view has drawn the ground of a chosen row by now.
    painter->fillRect(option.rect, option.palette.base());
    QStyledItemDelegate::paint(painter, plain, index);
    painter->save();
    if (index.data(Qt::BackgroundRole).isValid()) {
        painter->setPen(outlineColour());
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    if (option.state.testFlag(QStyle::State_Selected)) {
        painter->setPen(QPen(option.palette.color(QPalette::Text), frameWidth));
        painter->drawRect(option.rect.adjusted(1, 1, -frameWidth, -frameWidth));
    }
    painter->restore();
}

} // namespace progress
