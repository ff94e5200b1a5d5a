#pragma once

#include <QGridLayout>

#include <span>
#include <string>
#include <string_view>
#include <vector>

class QLineEdit;

namespace shell {

/// The object name of a box, what its label says, and the label's object name where captions are set by it.
struct FieldNames {
    std::string_view box;
    std::string_view caption;
    std::string_view label = {};
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
    void addControl(QWidget* control, std::string_view caption, std::string_view label = {});

    const std::vector<QLineEdit*>& boxes() const { return boxes_; }
    QLineEdit* box(std::size_t number) const { return boxes_.at(number); }

    /// Shows one text in each box, in their order; throws std::out_of_range where there are more than boxes.
    void show(std::span<const std::string_view> texts);

    /// Gives a box the focus, with the cursor behind its text, so that one goes on writing there.
    void goOnIn(std::size_t number) const;

    /// The texts in the boxes, in their order.
    std::vector<std::string> take() const;

Q_SIGNALS:
    /// The learner has changed the text of a box.
    void edited();

private:
    std::vector<QLineEdit*> boxes_;
    int lines_ = 0;
};

} // namespace shell
