#include "tables/windows/search_field.h"

#include "shell/kit/text.h"
#include "shell/language_texts.h"

#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

namespace tables {

using shell::LanguageTexts;

namespace {

// clang-format off
//                                 English             French                Italian               German                 Spanish                  Latin
constexpr LanguageTexts NotListed {"Not in the lists", "Pas dans les listes", "Non è nelle liste", "Nicht in den Listen", "No está en las listas", "Non est in indicibus"};
// clang-format on

} // namespace

void connectDown(QLineEdit& field, const std::function<void()>& step)
{
    auto* const shortcut = new QShortcut(Qt::Key_Down, &field);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &field, step);
}

void tellThatNoneIsListed(QLabel& state, bool noneIsListed)
{
    state.setVisible(noneIsListed);
    state.setText(noneIsListed ? shell::fromUtf8(NotListed) : QString());
}

} // namespace tables
