#pragma once

#include "progress/form.h"

#include <QTableWidget>

#include <vector>

namespace progress {

/// The forms of a cell, the worst in the first row: what is asked, how well it is known, the right answer,
/// and what was written instead, the latest first.
class FormsTable : public QTableWidget {
    Q_OBJECT

public:
    explicit FormsTable(QWidget* parent);

    void showForms(std::vector<Form> forms);

    QSize sizeHint() const override;

protected:
    /// The columns share the width: what is too long is shortened in its middle, and its tooltip has it
    /// whole.
    void resizeEvent(QResizeEvent* event) override;

private:
    void showForm(int row, const Form& form);
    void fitCells();
    void fitColumns();
};

} // namespace progress
