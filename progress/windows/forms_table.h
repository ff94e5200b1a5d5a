#pragma once

#include "progress/form.h"

#include <QTableWidget>

#include <vector>

namespace progress {

/// The forms of a cell, the worst in the first row: what is asked, how well it is known, the right answer,
/// and what was written instead, the latest first. It asks for the height of its rows where they are few, and
/// is never lower than its highest row, up to a number of lines.
class FormsTable : public QTableWidget {
    Q_OBJECT

public:
    explicit FormsTable(QWidget* parent);

    void showForms(std::vector<Form> forms);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// The columns share the width: what is too long is broken into lines.
    void resizeEvent(QResizeEvent* event) override;

private:
    void showForm(int row, const Form& form);
    void fitColumns();
    int roomForColumns() const;
    int widthWished() const;
    int heightAroundRows() const;
};

} // namespace progress
