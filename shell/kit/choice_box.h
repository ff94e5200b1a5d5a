#pragma once

#include <QComboBox>

namespace shell {

/// A list to choose from that opens from its box. The box keeps pace with its type, where Qt's keeps the
/// least size that it had in another.
class ChoiceBox : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace shell
