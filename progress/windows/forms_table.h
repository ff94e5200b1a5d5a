#pragma once

#include "progress/form.h"

#include <QTableWidget>

#include <array>
#include <cstddef>
#include <vector>

namespace progress {

/// The forms of a cell, the worst in the first row: what is asked, how well it is known, the right answer,
/// and what was written instead, the latest first. It asks for the height of its rows where they are few, and
/// is never lower than its highest row, up to a number of lines.
class FormsTable : public QTableWidget {
    Q_OBJECT

public:
    static constexpr std::size_t Columns = 4;

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

    using Widths = std::array<int, Columns>;

    /// What a table so wide has for its columns, and how wide they are in it.
    int room(int width) const;
    Widths widthsIn(int room) const;

    int widthWished() const;
    int heightAroundRows() const;
    int heightOfRow(int row, const Widths& widths) const;
    void takeHeightWished();

    int heightWished_ = 0;
};

} // namespace progress
