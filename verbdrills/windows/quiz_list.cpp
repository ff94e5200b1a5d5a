#include "verbdrills/windows/quiz_list.h"

#include "shell/kit/captions.h"
#include "shell/kit/type.h"

#include <QItemSelectionModel>

namespace verbdrills {

namespace {

constexpr int FewestRows = 5;
constexpr double RowType = 1.1;

} // namespace

QuizList::QuizList(QAnyStringView name, const QString& accessibleName, QWidget* parent) : ChoiceList(parent)
{
    setObjectName(name);
    setAccessibleName(accessibleName);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    shell::setType(*this, RowType);
}

void QuizList::fill(std::span<const shell::LanguageTexts> rows)
{
    shell::fillList(*this, rows);
    const int frame = 2 * frameWidth();
    const int row = sizeHintForRow(0);
    setMinimumSize(sizeHintForColumn(0) + frame + shell::WideSpace, FewestRows * row + frame);
    setMaximumHeight(count() * row + frame);
}

void QuizList::reset()
{
    selectionModel()->clear();
    scrollToTop();
}

} // namespace verbdrills
