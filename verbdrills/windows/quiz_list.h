#pragma once

#include "shell/kit/choice_list.h"
#include "shell/language_texts.h"

#include <span>

namespace verbdrills {

/// A list of the verb quiz.
class QuizList : public shell::ListOfItsRows {
    Q_OBJECT

public:
    QuizList(QAnyStringView name, const QString& accessibleName, QWidget* parent);

    /// Also wide enough for half an answer in words, where there is room.
    QSize sizeHint() const override;

    /// Fills the list anew for `CurrentLanguage`.
    void fill(std::span<const shell::LanguageTexts> rows);

    /// Chooses no row, and shows the first ones.
    void reset();
};

} // namespace verbdrills
