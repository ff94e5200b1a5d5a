#pragma once

#include "shell/kit/chooser.h"

namespace nouns {

/// Chooses the group of pronouns that is drilled.
class PronounChooser : public shell::Chooser {
    Q_OBJECT

public:
    PronounChooser();
};

} // namespace nouns
