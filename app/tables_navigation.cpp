#include "app/tables_navigation.h"

#include "app/word_shown.h"

#include <QApplication>
#include <QKeyEvent>

namespace app {

namespace {

bool asksForTable(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress || QApplication::activePopupWidget() != nullptr)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F2 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

} // namespace

TablesNavigation::TablesNavigation(shell::MainMenu& mainMenu)
{
    connect(&mainMenu, &shell::MainMenu::tablesRequested, this, [this] { tables_->open(); });
    qApp->installEventFilter(this);
}

bool TablesNavigation::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    const QWidget* const window = QApplication::activeWindow();
    if (window == nullptr || !asksForTable(*event))
        return false;
    const auto word = wordShownIn(*window);
    if (word)
        tables_->openAt(*word);
    return word.has_value();
}

} // namespace app
