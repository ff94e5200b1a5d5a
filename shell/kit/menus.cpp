#include "shell/kit/menus.h"

#include "shell/kit/text.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include <stdexcept>
#include <string>

namespace shell {

namespace {

QMenu& menuNamed(const QMenuBar& menuBar, std::string_view name)
{
    auto* const menu = menuBar.findChild<QMenu*>(fromUtf8(name));
    if (menu == nullptr)
        throw std::logic_error("no menu is named " + std::string(name));
    return *menu;
}

QAction* addMenu(QMenuBar& menuBar, const MenuEntry& entry)
{
    QMenu* const menu =
        entry.menu.empty() ? menuBar.addMenu(QString()) : menuNamed(menuBar, entry.menu).addMenu(QString());
    menu->setObjectName(fromUtf8(entry.name));
    menu->setAttribute(Qt::WA_WindowPropagation); // the type of the bar
    return menu->menuAction();
}

QActionGroup* choicesOf(QMenu& menu)
{
    auto* const choices = menu.findChild<QActionGroup*>(QString(), Qt::FindDirectChildrenOnly);
    return choices == nullptr ? new QActionGroup(&menu) : choices;
}

} // namespace

QAction* addMenuEntry(QMenuBar& menuBar, const MenuEntry& entry)
{
    if (entry.kind == MenuKind::Menu)
        return addMenu(menuBar, entry);
    QMenu& menu = menuNamed(menuBar, entry.menu);
    if (entry.kind == MenuKind::Separator)
        return menu.addSeparator();
    QAction* const action = menu.addAction(QString());
    action->setObjectName(fromUtf8(entry.name));
    action->setCheckable(entry.kind != MenuKind::Item);
    if (entry.kind == MenuKind::Choice)
        choicesOf(menu)->addAction(action);
    return action;
}

} // namespace shell
