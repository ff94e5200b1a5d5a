#pragma once

class QString;
class QWidget;

namespace shell {

/// Shows a word or two below a control for a moment: what was done there, and cannot be seen.
void showPassingNote(QWidget& control, const QString& text);

} // namespace shell
