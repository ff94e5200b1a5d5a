#include "tables/windows/page_model.h"

#include "shell/kit/text.h"
#include "tables/readings.h"

namespace tables {

void PageModel::show(const Word& word)
{
    Page page = pageOf(word);
    if (word == word_ && page == page_)
        return;
    beginResetModel();
    word_ = word;
    page_ = std::move(page);
    endResetModel();
}

QModelIndex PageModel::indexOf(int cell) const
{
    QModelIndex first;
    for (int row = 0; row < rowCount(); ++row)
        for (int column = 0; column < static_cast<int>(lineAt(row).cells.size()); ++column) {
            const PageCell& here = lineAt(row).cells.at(static_cast<std::size_t>(column));
            if (here.cell == cell)
                return index(row, column);
            if (!first.isValid() && !here.form().empty())
                first = index(row, column);
        }
    return first;
}

int PageModel::cellAt(const QModelIndex& index) const
{
    return index.isValid() && !lineAt(index.row()).isHeading()
               ? lineAt(index.row()).cells.at(static_cast<std::size_t>(index.column())).cell
               : 0;
}

int PageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(page_.lines.size());
}

int PageModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(page_.columns.size());
}

QVariant PageModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (lineAt(index.row()).isHeading())
        return dataOfHeading(index, role);
    const PageCell& cell = lineAt(index.row()).cells.at(static_cast<std::size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return shell::fromUtf8(cell.form());
    case EndingRole:
        return shell::fromUtf8(cell.ending);
    case SicRole:
        return cell.saysOfGrammar.has_value();
    case Qt::ToolTipRole:
        return shell::fromUtf8(cell.remark());
    case Qt::AccessibleDescriptionRole:
        return description(cell);
    default:
        return {};
    }
}

// It stands over the first column, and the view spreads it over all.
QVariant PageModel::dataOfHeading(const QModelIndex& index, int role) const
{
    if (role == HeadingRole)
        return true;
    const bool stands = role == Qt::DisplayRole && index.column() == 0;
    return stands ? shell::fromUtf8(lineAt(index.row()).name) : QVariant();
}

// What is read out behind the form.
QString PageModel::description(const PageCell& cell) const
{
    std::string text = cellInWords(word_, cell.cell);
    if (const std::string remark = cell.remark(); !remark.empty())
        text += ". " + remark;
    return shell::fromUtf8(text);
}

QVariant PageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal)
        return role == Qt::DisplayRole ? shell::fromUtf8(page_.columns.at(static_cast<std::size_t>(section)))
                                       : QVariant();
    if (role == Qt::DisplayRole && !lineAt(section).isHeading())
        return shell::fromUtf8(lineAt(section).name);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags PageModel::flags(const QModelIndex& index) const
{
    return cellAt(index) == 0 ? Qt::ItemFlags() : QAbstractTableModel::flags(index);
}

} // namespace tables
