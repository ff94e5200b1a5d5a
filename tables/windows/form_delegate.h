#pragma once

#include <QStyledItemDelegate>

namespace tables {

/// Paints a form of a page: the stem plain, the ending bold, and a small raised "sic" beside it where a
/// grammar has another. A heading is bold.
class FormDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace tables
