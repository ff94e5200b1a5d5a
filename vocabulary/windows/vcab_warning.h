#pragma once

#include "shell/kit/question_window.h"

namespace vocabulary {

/// Warns of changes to the list that are not saved.
class VcabWarning : public shell::QuestionWindow {
    Q_OBJECT

public:
    VcabWarning();

    void open();

Q_SIGNALS:
    void saveRequested();
    void discardRequested();

private:
    QPushButton* save_;
};

} // namespace vocabulary
