#pragma once

#include "shell/kit/chooser.h"

namespace verbdrills {

/// Chooses the class whose whole paradigm is drilled; its last row leads to the tenses.
class ConjugationChoose : public shell::Chooser {
    Q_OBJECT

public:
    ConjugationChoose();

protected:
    void beginChoice() override;

    /// The choice begins anew each time the window becomes active.
    void becameActive() override;
};

} // namespace verbdrills
