#include "app/application.h"

#include "shell/kit/indicator_style.h"

#include <QIcon>

#include <cstdlib>
#include <iostream>

namespace app {

namespace {

// Not asked of the desktop's theme, whose look-up costs a quarter of the program's start; nor any larger than
// a title bar needs, as every size is read for it.
QIcon programIcon()
{
    constexpr QSize ofTitleBar{32, 32};
    QIcon icon;
    icon.addFile(QStringLiteral(":/morvanti-32.png"), ofTitleBar);
    return icon;
}

} // namespace

void tellFault(std::string_view fault)
{
    std::cerr << "morvanti: " << fault << std::endl;
}

void endWithFault(const std::exception& fault)
{
    tellFault(fault.what());
    std::_Exit(EXIT_FAILURE);
}

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    setApplicationName(QStringLiteral("Morvanti"));
    setApplicationVersion(QStringLiteral(MORVANTI_VERSION));
    setDesktopFileName(QStringLiteral("morvanti"));
    setWindowIcon(programIcon());
    setStyle(new shell::IndicatorStyle(style()));
    setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        endWithFault(fault);
    }
}

} // namespace app
