#pragma once

#include "shell/language_texts.h"

#include <QAction>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

class QMenuBar;

namespace shell {

/// A switch is checked or not; of the choices of one menu one at the most is checked.
enum class MenuKind { Menu, Item, Switch, Choice, Separator };

/// What a row of a table of menus adds.
struct MenuEntry {
    /// Its object name; a separator has none.
    std::string_view name;

    /// The menu that it stands in, one of the rows before; empty where it is a menu of the menu bar itself.
    std::string_view menu;

    MenuKind kind;
    LanguageTexts texts;
};

/// A row of a window's table of menus, with the signal that an item requests what it stands for by.
template <typename Window>
struct MenuRow {
    MenuEntry entry;
    void (Window::*request)() = nullptr;
};

/// Adds a menu, an item or a separator, still without a caption, below those that its menu has already.
/// Throws std::logic_error where that menu is missing. Returns the action that stands in the menu.
QAction* addMenuEntry(QMenuBar& menuBar, const MenuEntry& entry);

/// Fills a window's menu bar with all rows, and joins its items to what they request.
template <typename Window, std::size_t Count>
void makeMenus(QMenuBar& menuBar, Window& window, const std::array<MenuRow<Window>, Count>& rows)
{
    for (const MenuRow<Window>& row : rows) {
        const QAction* const action = addMenuEntry(menuBar, row.entry);
        if (row.request != nullptr)
            QObject::connect(action, &QAction::triggered, &window, row.request);
    }
}

/// The captions of all rows.
template <typename Window, std::size_t Count>
std::vector<Caption> captionsOf(const std::array<MenuRow<Window>, Count>& rows)
{
    std::vector<Caption> captions;
    for (const MenuRow<Window>& row : rows)
        if (row.entry.kind != MenuKind::Separator)
            captions.push_back({row.entry.name, row.entry.texts});
    return captions;
}

} // namespace shell
