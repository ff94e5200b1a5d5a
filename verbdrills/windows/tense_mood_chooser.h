#pragma once

#include "shell/kit/chooser.h"

namespace verbdrills {

/// Chooses one tense, which is drilled through the regular conjugations.
class TenseMoodChooser : public shell::Chooser {
    Q_OBJECT

public:
    TenseMoodChooser();

protected:
    void beginChoice() override;
};

} // namespace verbdrills
