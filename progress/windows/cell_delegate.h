#pragma once

#include <QStyledItemDelegate>

namespace progress {

/// Paints the cells of a grid in their own colours: the one that is chosen has a frame.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace progress
