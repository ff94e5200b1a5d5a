#pragma once

#include <QApplication>

#include <exception>
#include <string_view>

namespace app {

/// One line on standard error, under the program's name.
void tellFault(std::string_view fault);

/// Where exceptions end: the fault is told, and the exit status is 1.
[[noreturn]] void endWithFault(const std::exception& fault);

/// Ends the program with the fault where one is thrown while an event is handled.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
