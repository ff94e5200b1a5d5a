#pragma once

#include <QLatin1String>

class QGridLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace shell {

/// A control with this object name.
template <typename Control>
Control* makeControl(QWidget* parent, const char* name)
{
    auto* const control = new Control(parent);
    control->setObjectName(QLatin1String(name));
    return control;
}

/// A label with this object name. Its text is shown as it stands.
QLabel* makeLabel(QWidget* parent, const char* name);

/// Puts a control into the second column of a grid, and its label, with an access key, into the first.
void addField(QGridLayout& grid, int row, const char* caption, QWidget* control);

/// A button with this object name, which Enter presses as the space bar does.
QPushButton* makeButton(QWidget* parent, const char* name);

} // namespace shell
