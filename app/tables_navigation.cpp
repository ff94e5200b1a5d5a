#include "app/tables_navigation.h"

#include "app/key_filter.h"
#include "app/word_shown.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace app {

namespace {

bool asksForTable(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_F2 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

// What may have changed a setting or a list in another window, or which window is modal.
bool mayChange(const tables::Tables& tables, const QObject& receiver, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        return receiver.isWidgetType() && static_cast<const QWidget&>(receiver).window() != &tables;
    case QEvent::Show:
    case QEvent::Hide:
        return qobject_cast<const shell::Window*>(&receiver) != nullptr;
    default:
        return false;
    }
}

} // namespace

TablesNavigation::TablesNavigation(shell::MainMenu& mainMenu)
{
    following_.setSingleShot(true);
    following_.setInterval(0);
    connect(&following_, &QTimer::timeout, this, &TablesNavigation::follow);
    connect(&mainMenu, &shell::MainMenu::tablesRequested, this, [this] { tables_->open(); });
    connect(mainMenu.findChild<QMenuBar*>(), &QMenuBar::triggered, &following_, qOverload<>(&QTimer::start));
    qApp->installEventFilter(this);
}

void TablesNavigation::joinTables(tables::Tables& tables)
{
    made_ = &tables;
    hideWhenLeft(tables);
}

bool TablesNavigation::eventFilter(QObject* receiver, QEvent* event)
{
    if (asksForTable(*event))
        return openAtWordShown();
    if (made_ != nullptr && made_->isVisible() && mayChange(*made_, *receiver, *event))
        following_.start();
    return false;
}

bool TablesNavigation::openAtWordShown()
{
    const shell::Window* const window = windowWithTheKeys();
    const auto word = window == nullptr ? std::nullopt : wordShownIn(*window);
    if (word)
        tables_->openAt(*word);
    return word.has_value();
}

// A window that became modal has stopped the tables; a message or the file dialog is to be answered first.
void TablesNavigation::follow()
{
    if (made_ == nullptr || !made_->isVisible())
        return;
    const QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr || qobject_cast<const shell::Window*>(modal) != nullptr)
        tables_->standAboveModal();
    tables_->refresh();
}

} // namespace app
