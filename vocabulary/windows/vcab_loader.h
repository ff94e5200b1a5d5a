#pragma once

#include "shell/kit/window.h"

class QPushButton;

namespace shell {
class ChoiceList;
}

namespace vocabulary {

/// Chooses the list to be tested among those of the working folder.
class VcabLoader : public shell::Window {
    Q_OBJECT

public:
    VcabLoader();

    /// Shows the lists that there are now; none is chosen.
    void open();

private:
    void makeControls();
    void layOut();
    void connectControls();
    void loadChosen();

    shell::ChoiceList* files_;
    QPushButton* open_;
    QPushButton* cancel_;
};

} // namespace vocabulary
