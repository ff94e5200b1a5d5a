#pragma once

#include <QTableView>

namespace progress {

class CellModel;

/// Shows a grid of cells, as high as its rows where the window has room for them, and as a few of them where
/// it has not. The headings of its columns stand in one line each, and are broken into more only where the
/// columns need a greater width than it has.
class CellTable : public QTableView {
    Q_OBJECT

public:
    explicit CellTable(QWidget* parent);

    CellModel* cells() const { return cells_; }

    /// Makes room for what the cells hold now.
    void fitCells();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int heightOfRows(int rows) const;
    int roomForColumns() const;
    void fitColumns();

    CellModel* cells_;

    /// The width of all columns where headings are broken as little as they may be.
    int widthWished_ = 0;
};

} // namespace progress
