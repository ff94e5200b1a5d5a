#pragma once

#include "shell/kit/choice_list.h"
#include "shell/language_texts.h"

#include <span>

namespace verbdrills {

/// A list of the verb quiz. It takes the height of its rows where there is room, and scrolls where there is
/// little.
class QuizList : public shell::ChoiceList {
    Q_OBJECT

public:
    QuizList(QAnyStringView name, const QString& accessibleName, QWidget* parent);

    /// Fills the list anew for `CurrentLanguage`.
    void fill(std::span<const shell::LanguageTexts> rows);

    /// Chooses no row, and shows the first ones.
    void reset();
};

} // namespace verbdrills
