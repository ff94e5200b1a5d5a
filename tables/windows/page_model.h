#pragma once

#include "tables/page.h"

#include <QAbstractTableModel>

namespace tables {

/// The page of a word for a view. A heading is a line that cannot be chosen; its name stands in its
/// first cell.
class PageModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role { EndingRole = Qt::UserRole, SicRole, HeadingRole };

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows the page of a word, which a view hears of where it is another than before.
    void show(const Word& word);

    const Page& page() const { return page_; }

    /// Where the cell with a number of the word's table stands; the first form where the page has it not.
    QModelIndex indexOf(int cell) const;

    /// The number of the cell; 0 in a heading.
    int cellAt(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const PageLine& lineAt(int row) const { return page_.lines.at(static_cast<std::size_t>(row)); }
    QVariant dataOfHeading(const QModelIndex& index, int role) const;
    QString description(const PageCell& cell) const;

    Word word_{};
    Page page_;
};

} // namespace tables
