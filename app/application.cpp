#include "app/application.h"

#include <QIcon>

#include <cstdlib>
#include <exception>
#include <iostream>

namespace app {

namespace {

// The icon of the desktop's theme where it has one, else the program's own.
QIcon programIcon()
{
    QIcon own;
    for (const int size : {32, 128})
        own.addFile(QStringLiteral(":/morvanti-%1.png").arg(size));
    return QIcon::fromTheme(QStringLiteral("morvanti"), own);
}

} // namespace

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    setApplicationName(QStringLiteral("Morvanti"));
    setApplicationVersion(QStringLiteral(MORVANTI_VERSION));
    setDesktopFileName(QStringLiteral("morvanti"));
    setWindowIcon(programIcon());
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        std::cerr << "morvanti: " << error.what() << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace app
