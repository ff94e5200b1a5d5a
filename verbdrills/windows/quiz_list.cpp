#include "verbdrills/windows/quiz_list.h"

#include "shell/kit/captions.h"
#include "shell/kit/type.h"

#include <QItemSelectionModel>

namespace verbdrills {

namespace {

// The longest answer in words takes two lines of so many.
constexpr int CharactersOfAnswer = 48;

} // namespace

QuizList::QuizList(QAnyStringView name, const QString& accessibleName, QWidget* parent)
    : ListOfItsRows(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    shell::setType(*this, shell::ListType);
}

void QuizList::fill(std::span<const shell::LanguageTexts> rows)
{
    shell::fillList(*this, rows);
}

QSize QuizList::sizeHint() const
{
    return ListOfItsRows::sizeHint().expandedTo({CharactersOfAnswer * fontMetrics().averageCharWidth(), 0});
}

void QuizList::reset()
{
    selectionModel()->clear();
    scrollToTop();
}

} // namespace verbdrills
