#pragma once

#include "vocabulary/windows/list_question.h"

namespace vocabulary {

/// Warns of changes to the list that are not saved.
class VcabWarning : public ListQuestion {
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
