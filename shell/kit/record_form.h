#pragma once

#include <QGridLayout>

#include <span>
#include <string>
#include <vector>

class QLineEdit;

namespace shell {

/// The object name of a box, what its label says, and the label's object name where captions are set by it.
struct FieldNames {
    const char* box;
    const char* caption;
    const char* label = "";
};

/// The boxes for the texts of a record, one on a line, each behind its label. An access key of a label leads
/// to its box.
class RecordForm : public QGridLayout {
    Q_OBJECT

public:
    RecordForm();

    /// Adds boxes to the form, which come below what stands there.
    void addBoxes(QWidget* parent, std::span<const FieldNames> fields);

    /// Adds another control likewise.
    void addControl(const FieldNames& field, QWidget* control);

    const std::vector<QLineEdit*>& boxes() const { return boxes_; }
    QLineEdit* box(std::size_t number) const { return boxes_.at(number); }

    /// Shows one text in each box, or takes one out of each. The texts stand in the order of the boxes;
    /// throws std::out_of_range where there are more than boxes.
    void show(std::span<std::string* const> texts);
    void take(std::span<std::string* const> texts) const;

Q_SIGNALS:
    /// The learner has changed the text of a box.
    void edited();

private:
    std::vector<QLineEdit*> boxes_;
    int lines_ = 0;
};

} // namespace shell
