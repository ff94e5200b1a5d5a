#include "vocabulary/windows/vcabtester_menus.h"

#include <QActionGroup>
#include <QMenuBar>

#include <span>

namespace vocabulary {

namespace {

constexpr std::array ListItems = {"VcabTesterFileOpen", "VcabTesterEdit"};
constexpr std::array OrderItems = {"VcabtesterOptionsOrderSequential", "VcabtesterOptionsOrderRandom"};
constexpr std::array PromptItems = {"VcabtesterOptionsPromptEnglish", "VcabtesterOptionsPromptLatin",
                                    "VcabtesterOptionsPromptMixed"};

QMenu* addMenu(QMenuBar& menuBar, const char* name)
{
    QMenu* const menu = menuBar.addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    return menu;
}

void addItems(QMenu* menu, std::span<const char* const> names)
{
    for (const char* const name : names)
        menu->addAction(QString())->setObjectName(QLatin1String(name));
}

// Of these items always one is checked.
void addOptions(QMenu* menu, std::span<const char* const> names)
{
    addItems(menu, names);
    auto* const group = new QActionGroup(menu);
    for (QAction* const item : menu->actions()) {
        item->setCheckable(true);
        group->addAction(item);
    }
}

} // namespace

void makeVcabtesterMenus(QMenuBar& menuBar)
{
    addItems(addMenu(menuBar, "VcabTesterFile"), ListItems);
    addOptions(addMenu(menuBar, "VcabtesterOptionsOrder"), OrderItems);
    addOptions(addMenu(menuBar, "VcabtesterOptionsPrompt"), PromptItems);
}

} // namespace vocabulary
