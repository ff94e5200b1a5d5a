// A window with as many buttons and menu items as the main window, and nothing else: what any Qt program
// pays.

#include <QApplication>
#include <QGridLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QWidget>

int main(int argumentCount, char** arguments)
{
    constexpr int buttons = 6;
    constexpr int topMenus = 4;
    constexpr int subMenus = 3;
    constexpr int items = 29;

    const QApplication application(argumentCount, arguments);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Velmorane"));
    auto* const grid = new QGridLayout(&window);
    for (int i = 0; i < buttons; ++i)
        grid->addWidget(new QPushButton(QStringLiteral("Button %1").arg(i)), i / 2, i % 2);
    auto* const bar = new QMenuBar;
    grid->setMenuBar(bar);
    QList<QMenu*> menus;
    for (int i = 0; i < topMenus; ++i)
        menus.append(bar->addMenu(QStringLiteral("Menu %1").arg(i)));
    for (int i = 0; i < subMenus; ++i)
        menus.append(menus.at(1)->addMenu(QStringLiteral("Submenu %1").arg(i)));
    for (int i = 0; i < items; ++i)
        menus.at(i % menus.size())->addAction(QStringLiteral("Item %1").arg(i));
    window.showMaximized();
    return QApplication::exec();
}
