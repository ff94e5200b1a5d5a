#pragma once

#include <QLatin1String>

class QWidget;

namespace vocabulary {

/// A new control of a window, under its object name.
template <typename Control>
Control* named(const char* name, QWidget* window)
{
    auto* const control = new Control(window);
    control->setObjectName(QLatin1String(name));
    return control;
}

} // namespace vocabulary
