#pragma once

#include "shell/kit/controls.h"

#include <QComboBox>
#include <QKeyEvent>

namespace progress {

/// The choice of what a review asks. The arrows choose; what is typed is meant for the answer, and would
/// choose another kind by its first letter.
class KindBox : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

Q_SIGNALS:
    /// Enter was pressed: the choice is made.
    void chosen();

    /// A key that writes something was pressed, but for the space bar, which opens the list.
    void letterTyped(QKeyEvent* key);

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (shell::isEnter(*event))
            Q_EMIT chosen();
        else if (isLetter(*event))
            Q_EMIT letterTyped(event);
        else
            QComboBox::keyPressEvent(event);
    }

private:
    static bool isLetter(const QKeyEvent& key)
    {
        constexpr Qt::KeyboardModifiers command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
        return !(key.modifiers() & command) && !key.text().isEmpty() && key.text().front().isPrint() &&
               key.key() != Qt::Key_Space;
    }
};

} // namespace progress
