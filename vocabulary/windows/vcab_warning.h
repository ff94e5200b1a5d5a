#pragma once

#include "shell/kit/window.h"

class QLabel;
class QPushButton;

namespace vocabulary {

/// Warns of changes to the list that are not saved, and holds the other windows until it is answered.
class VcabWarning : public shell::Window {
    Q_OBJECT

public:
    VcabWarning();

    void open();

Q_SIGNALS:
    void saveRequested();
    void discardRequested();

private:
    void makeControls();
    void layOut();
    void connectControls();

    QLabel* text_;
    QPushButton* save_;
    QPushButton* discard_;
    QPushButton* cancel_;
};

} // namespace vocabulary
