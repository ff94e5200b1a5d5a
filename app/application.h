#pragma once

#include <QApplication>

#include <exception>

namespace app {

/// Where exceptions end: one line on standard error, and exit status 1.
[[noreturn]] void endWithFault(const std::exception& fault);

/// Ends the program with the fault where one is thrown while an event is handled.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
