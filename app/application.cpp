#include "app/application.h"

#include <cstdlib>
#include <exception>
#include <iostream>

namespace app {

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    setApplicationName(QStringLiteral("Morvanti"));
    setApplicationVersion(QStringLiteral(MORVANTI_VERSION));
    setDesktopFileName(QStringLiteral("morvanti"));
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
