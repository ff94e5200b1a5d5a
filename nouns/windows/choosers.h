#pragma once

#include "shell/kit/chooser.h"

namespace nouns {

/// Chooses the paradigm of which a noun is declined.
class DeclinationChoose : public shell::Chooser {
    Q_OBJECT

public:
    DeclinationChoose();

protected:
    void beginChoice() override;
    bool beginsAtOk() const override;
};

/// Chooses the group of pronouns that is drilled.
class PronounChooser : public shell::Chooser {
    Q_OBJECT

public:
    PronounChooser();
};

} // namespace nouns
