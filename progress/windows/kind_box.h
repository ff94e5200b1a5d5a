#pragma once

#include "shell/kit/choice_box.h"
#include "shell/kit/controls.h"

#include <QKeyEvent>

namespace progress {

/// The choice of what a review asks. The arrows choose; what is typed is meant for the answer, and would
/// choose another kind by its first letter.
class KindBox : public shell::ChoiceBox {
    Q_OBJECT

public:
    using ChoiceBox::ChoiceBox;

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
        else if (shell::writes(*event) && event->key() != Qt::Key_Space)
            Q_EMIT letterTyped(event);
        else
            ChoiceBox::keyPressEvent(event);
    }
};

} // namespace progress
