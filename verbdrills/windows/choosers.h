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

/// Chooses one tense, which is drilled through the regular conjugations.
class TenseMoodChooser : public shell::Chooser {
    Q_OBJECT

public:
    TenseMoodChooser();

protected:
    void beginChoice() override;
};

} // namespace verbdrills
