#pragma once

#include "progress/grid.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <map>
#include <utility>
#include <vector>

namespace progress {

/// One of the three grids: its columns and rows stand in the order of a grammar, words in that in which they
/// were first answered. Names are shown in the language of the interface. A cell's text is its share, its
/// ground the shade of that, and its accessible text and tooltip say both in words.
class CellModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const std::vector<Cell>& cells);

    /// Shows the headings of the columns in one line each, or in lines of at most so many characters, longer
    /// words apart.
    void joinHeadings();
    void breakHeadings(int characters);

    /// The cell at a place; nullptr where nothing was answered.
    const Cell* cellAt(const QModelIndex& place) const;

    /// The place of the cell with the smallest share of right answers.
    QModelIndex worst() const;

    /// "First Conjugation, Perfect Subjunctive".
    QString nameAt(const QModelIndex& place) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& place, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Place = std::pair<int, int>;

    QString inWords(const QModelIndex& place) const;

    void setHeadings(QStringList headings);

    QStringList columns_;
    QStringList headings_;
    QStringList rows_;
    std::map<Place, Cell> cells_;
};

} // namespace progress
