#pragma once

#include <QListWidget>

namespace shell {

/// A list from which one row is chosen: a click or the arrow keys choose it, a double click or Enter
/// activates it. Where no row is chosen, Enter does nothing.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

    /// The chosen row, -1 where there is none.
    int chosenRow() const;

Q_SIGNALS:
    void rowChosen(int row);
    void rowActivated(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void activateChosenRow();
};

} // namespace shell
