#pragma once

#include <QApplication>

namespace app {

/// The one boundary at which exceptions end: one line on standard error, and exit status 1.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argumentCount, char** arguments);

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace app
