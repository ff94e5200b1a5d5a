#pragma once

class QLabel;
class QPushButton;
class QWidget;

namespace shell {

/// A label with this object name. Its text is shown as it stands.
QLabel* makeLabel(QWidget* parent, const char* name);

/// A button with this object name, which Enter presses as the space bar does.
QPushButton* makeButton(QWidget* parent, const char* name);

} // namespace shell
