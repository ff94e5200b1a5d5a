#pragma once

#include <QGuiApplication>

namespace app {

/// Shows the hourglass pointer while one window gives way to another.
class Hourglass {
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace app
