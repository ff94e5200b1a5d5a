#pragma once

#include <QListWidget>

namespace shell {

/// A list from which one row is chosen: a click or the arrow keys choose it, a double click or Enter
/// activates it. A click beside the rows leaves the choice as it is. Where the rows scroll, whole ones are
/// shown.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

    /// The chosen row, -1 where there is none.
    int chosenRow() const;

Q_SIGNALS:
    void rowChosen(int row);
    void rowActivated(int row);

    /// Enter was pressed where no row is chosen: the current one, which has the frame of the focus.
    void unchosenRowEntered(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void updateGeometries() override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void activateChosenRow();
};

/// A list that takes just the room of its rows, in the type that it has: no row is cut off, and none is
/// empty. Where there is less room it scrolls, and shows a few of them at the least.
class ListOfItsRows : public ChoiceList {
    Q_OBJECT

public:
    explicit ListOfItsRows(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize roomForRows(int rows) const;
};

} // namespace shell
